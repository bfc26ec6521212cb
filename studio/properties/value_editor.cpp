#include "value_editor.h"

#include "clock_pictures.h"
#include "colour_button.h"
#include "family_box.h"

#include "clock_node.h"
#include "number_text.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSpinBox>
#include <QStyleOptionComboBox>
#include <QStylePainter>

namespace ClockStudio {

namespace {

using namespace Lw::HNodeClock;

constexpr int kMax = 9999;      // of plain numbers, such as gaps in pixels
constexpr int kListWords = 250; // pixels for the words beside a picture
const QString kMixed = QStringLiteral("–");

class FlagEditor : public ValueEditor
{
public:
    explicit FlagEditor(enum Attribute attribute)
        : ValueEditor(attribute), m_box(new QCheckBox(TranslatedWords(Row().label)))
    {
        Use(m_box);
        connect(m_box, &QCheckBox::clicked, this, [this](bool on) {
            m_box->setTristate(false);
            emit Edited(QString::number(on ? 1 : 0));
        });
    }

    void Show(const QString &stored, bool isMixed) override
    {
        m_box->setCheckState(isMixed                         ? Qt::PartiallyChecked
                                 : Lw::NumberIn(stored) != 0 ? Qt::Checked
                                                             : Qt::Unchecked);
    }

private:
    QCheckBox *m_box;
};

/// Shows picture and text in the list, but only the picture when closed.
class PictureBox : public QComboBox
{
public:
    explicit PictureBox(Attribute attribute) : m_attribute(attribute) { }

    /// Pictures are drawn lazily, as drawing all of them would delay the start.
    void DrawPicture(int index)
    {
        if (index < 0 || !itemIcon(index).isNull())
            return;
        const QPixmap picture = CodePicture(m_attribute, itemData(index).toInt());
        if (!picture.isNull())
            setIconSize(picture.size());
        setItemIcon(index, QIcon(picture));
    }

    void showPopup() override
    {
        for (int index = 0; index < count(); ++index)
            DrawPicture(index);
        view()->setMinimumWidth(iconSize().width() + kListWords);
        QComboBox::showPopup();
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        if (currentIndex() < 0 || itemIcon(currentIndex()).isNull())
            return QComboBox::paintEvent(event);
        QStylePainter painter(this);
        QStyleOptionComboBox option;
        initStyleOption(&option);
        option.currentText.clear();
        painter.drawComplexControl(QStyle::CC_ComboBox, option);
        painter.drawControl(QStyle::CE_ComboBoxLabel, option);
    }

private:
    const Attribute m_attribute;
};

class CodeEditor : public ValueEditor
{
public:
    explicit CodeEditor(enum Attribute attribute)
        : ValueEditor(attribute), m_box(new PictureBox(attribute))
    {
        const ValueRange &range = Row().range;
        for (int code = range.first; code <= range.last; ++code)
            m_box->addItem(TranslatedWords(range.NameOf(code)), code);
        // The closed box is as wide as the panel; the list is as wide as its texts.
        m_box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        m_box->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        Use(m_box);
        connect(m_box, QOverload<int>::of(&QComboBox::activated), this,
                [this](int index) { emit Edited(m_box->itemData(index).toString()); });
    }

    void Show(const QString &stored, bool isMixed) override
    {
        const int index = isMixed ? -1 : m_box->findData(Lw::NumberIn(stored));
        m_box->DrawPicture(index);
        m_box->setCurrentIndex(index);
    }

private:
    PictureBox *m_box;
};

class NumberEditor : public ValueEditor
{
public:
    explicit NumberEditor(enum Attribute attribute) : ValueEditor(attribute), m_box(new QSpinBox)
    {
        const bool isSize = Row().role == ValueRole::Size;
        // The minimum value represents mixed values.
        m_box->setRange(isSize ? 0 : -kMax - 1, isSize ? Row().range.last : kMax);
        m_box->setSuffix(isSize ? tr(" pt") : tr(" px"));
        m_box->setKeyboardTracking(false);
        m_box->setAccelerated(true);
        Use(m_box);
        connect(m_box, QOverload<int>::of(&QSpinBox::valueChanged), this, [this](int value) {
            if (!m_isShowing && value > m_box->minimum())
                emit Edited(QString::number(value));
        });
    }

    void Show(const QString &stored, bool isMixed) override
    {
        m_isShowing = true;
        m_box->setSpecialValueText(isMixed ? kMixed : QString());
        m_box->setValue(isMixed ? m_box->minimum() : Lw::NumberIn(stored));
        m_isShowing = false;
    }

private:
    QSpinBox *m_box;
    bool m_isShowing = false;
};

class TextEditor : public ValueEditor
{
public:
    explicit TextEditor(enum Attribute attribute) : ValueEditor(attribute), m_line(new QLineEdit)
    {
        Use(m_line);
        connect(m_line, &QLineEdit::textEdited, this, &TextEditor::Edited);
    }

    void Show(const QString &stored, bool isMixed) override
    {
        m_line->setPlaceholderText(isMixed ? tr("mixed") : QString());
        const QString text = isMixed ? QString() : stored;
        if (m_line->text() != text)
            m_line->setText(text);
    }

private:
    QLineEdit *m_line;
};

class ColourEditor : public ValueEditor
{
public:
    explicit ColourEditor(enum Attribute attribute)
        : ValueEditor(attribute), m_button(new ColourButton)
    {
        Use(m_button);
        connect(m_button, &ColourButton::Selected, this, &ColourEditor::Edited);
    }

    void Show(const QString &stored, bool isMixed) override { m_button->Show(stored, isMixed); }

private:
    ColourButton *m_button;
};

class FamilyEditor : public ValueEditor
{
public:
    explicit FamilyEditor(enum Attribute attribute) : ValueEditor(attribute), m_box(new FamilyBox)
    {
        Use(m_box);
        connect(m_box, &FamilyBox::Selected, this, &FamilyEditor::Edited);
    }

    void Show(const QString &stored, bool isMixed) override { m_box->Show(stored, isMixed); }
    void ShowFor(HClockNode &clock) override { m_box->SetText(WrittenWith(clock, Attribute())); }

private:
    FamilyBox *m_box;
};

} // namespace

ValueEditor::ValueEditor(enum Attribute attribute) : m_attribute(attribute) { }

void ValueEditor::Use(QWidget *control)
{
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(control);
    setFocusProxy(control);
    control->setAccessibleName(TranslatedWords(Row().label));
    control->setAccessibleDescription(TranslatedWords(Row().meaning));
    setToolTip(TranslatedWords(Row().meaning));
    setObjectName(QLatin1String(Row().key));
    control->setObjectName(QLatin1String(Row().key) + QStringLiteral("Control"));
}

ValueEditor *MakeValueEditor(enum Attribute attribute)
{
    switch (RowOf(attribute).role) {
    case ValueRole::Flag:
        return new FlagEditor(attribute);
    case ValueRole::Code:
        return new CodeEditor(attribute);
    case ValueRole::Number:
    case ValueRole::Size:
        return new NumberEditor(attribute);
    case ValueRole::Colour:
        return new ColourEditor(attribute);
    case ValueRole::Family:
        return new FamilyEditor(attribute);
    default:
        return new TextEditor(attribute);
    }
}

QString TranslatedWords(const char *words)
{
    return QCoreApplication::translate("ClockStudio::Attributes", words);
}

} // namespace ClockStudio
