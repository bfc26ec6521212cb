#include "family_box.h"

#include "glyph/draw_source_image.h"
#include "glyph/glyph_set.h"

#include "clock_node.h"
#include "font_check.h"

#include <QAbstractItemView>
#include <QRawFont>

namespace ClockStudio {

namespace {

using namespace Lw::HNodeClock;

/// The format codes of a clock.
struct Codes
{
    int date;
    int week;
    int time;
};

Codes CodesOf(HClockNode &clock)
{
    const bool isDigital = clock.ClockType() == DigitalClock;
    const auto code = [&clock, isDigital](Attribute digital, Attribute analog) {
        return clock.GetAttributeToInt(Key(isDigital ? digital : analog));
    };
    return {code(Attribute::DigitalDateType, Attribute::AnalogDateType),
            code(Attribute::DigitalWeekType, Attribute::AnalogWeekType),
            code(Attribute::DigitalTimeType, Attribute::DigitalTimeType)};
}

/// Images exist for every format; a clock shows only those of its own.
bool IsShown(Glyph glyph, const Codes &codes)
{
    switch (glyph) {
    case Glyph::ChWeek:
        return codes.week == 0;
    case Glyph::EnWeek:
        return codes.week == 1;
    case Glyph::EnWeekSim:
        return codes.week == 2;
    case Glyph::PersiaWeek:
        return codes.week == 3;
    case Glyph::EnMonth:
        return codes.date == 3 || codes.date == 4;
    case Glyph::DateCh:
        return codes.date == 5 || codes.date == 6;
    case Glyph::TimeCh:
        return codes.time == 2 || codes.time == 3;
    default:
        return true;
    }
}

QString GlyphText(const GlyphImage &image, HClockNode &clock)
{
    switch (image.row->wording) {
    case GlyphWording::Translated:
        return DrwSourceIMage::tr(image.Text());
    case GlyphWording::Verbatim:
        return image.row->shape == GlyphShape::DigitStrip ? QStringLiteral("0123456789")
                                                          : QString::fromLatin1(image.Text());
    case GlyphWording::TopText:
        break;
    }
    const bool isDigital = clock.ClockType() == DigitalClock;
    return clock.GetAttribute(
        Key(isDigital ? Attribute::DigitalTopText : Attribute::AnalogTopText));
}

} // namespace

QString MissingCharacters(const QString &family, const QString &text)
{
    if (!ClockFit::HasFonts())
        return {};
    const QRawFont font = QRawFont::fromFont(QFont(family));
    QString lacked;
    for (const char32_t character : text.toUcs4()) {
        const QString one = QString::fromUcs4(&character, 1);
        if (!QChar::isSpace(character) && !font.supportsCharacter(character)
            && !lacked.contains(one))
            lacked += one;
    }
    return lacked;
}

QString WrittenWith(HClockNode &clock, Attribute familyAttribute)
{
    QString text;
    const Codes codes = CodesOf(clock);
    for (const GlyphImage &image : GlyphImages(GlyphOrder::Generation, clock.ClockType())) {
        const bool isOfFont =
            FontAttributes(image.row->font, clock.ClockType()).family == familyAttribute;
        if (isOfFont && IsShown(image.row->glyph, codes))
            text += GlyphText(image, clock);
    }
    return text;
}

FamilyBox::FamilyBox()
{
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    addItem(tr("Default font"), QString());
    for (const QString &family : ClockFit::InstalledFamilies()) {
        addItem(family, family);
        setItemData(count() - 1, QFont(family, 11), Qt::FontRole);
    }
    m_installedEnd = count();
    connect(this, QOverload<int>::of(&QComboBox::activated), this,
            [this](int index) { emit Selected(itemData(index).toString()); });
}

void FamilyBox::Show(const QString &family, bool isMixed)
{
    int index = isMixed ? -1 : findData(family);
    if (!isMixed && index < 0) {
        addItem(tr("%1 (not installed)").arg(family), family);
        index = count() - 1;
    }
    setCurrentIndex(index);
}

void FamilyBox::showPopup()
{
    MarkIncompleteFamilies();
    view()->setMinimumWidth(280);
    QComboBox::showPopup();
}

void FamilyBox::MarkIncompleteFamilies()
{
    for (int i = 1; i < m_installedEnd; ++i) {
        const QString family = itemData(i).toString();
        const QString lacked = MissingCharacters(family, m_text);
        setItemText(i,
                    lacked.isEmpty() ? family : tr("%1 (missing %2)").arg(family, lacked.left(6)));
        setItemData(i,
                    palette().brush(lacked.isEmpty() ? QPalette::Active : QPalette::Disabled,
                                    QPalette::Text),
                    Qt::ForegroundRole);
    }
}

} // namespace ClockStudio
