#include "legible_sizes.h"

#include "digit_shape.h"

#include "glyph/glyph_picture.h"
#include "glyph/glyph_set.h"

#include <QHash>
#include <QPainter>
#include <QStringList>

namespace ClockTool {

namespace {

using namespace Lw::HNodeClock;

constexpr int kReferencePoints = 160; // large enough to keep every stroke

/// The ten digits as a strip has them.
QVector<QImage> DigitsOf(const QFont &font)
{
    const int cell = WidestDigit(QFontMetrics(font));
    QPixmap strip = EmptyPicture(font, cell * kDigitCells);
    if (strip.isNull())
        return {};
    QPainter painter;
    BeginDigits(painter, strip, font, Qt::white);
    painter.end();
    const QImage image = strip.toImage();
    QVector<QImage> digits;
    for (int digit = 0; digit < kDigitCells; ++digit)
        digits.append(image.copy(digit * cell, 0, cell, image.height()));
    return digits;
}

/// The characters of a strip of separators, cut as a clock cuts it.
QVector<QImage> SeparatorsOf(const QFont &font, const QString &text)
{
    QPixmap strip = EmptyPicture(font, GlyphTextWidth(QFontMetrics(font), text));
    if (strip.isNull())
        return {};
    QPainter painter;
    BeginText(painter, strip, font, Qt::white, text);
    painter.end();
    const QImage image = strip.toImage();
    const int cell = image.width() / static_cast<int>(text.size());
    QVector<QImage> separators;
    for (int i = 0; i < text.size(); ++i)
        separators.append(image.copy(i * cell, 0, cell, image.height()));
    return separators;
}

QStringList SeparatorFaults(const QString &family, const QFont &font, const QString &text)
{
    const QVector<QImage> here = SeparatorsOf(font, text);
    const QVector<QImage> large = SeparatorsOf(GlyphTypeface(family, kReferencePoints), text);
    QStringList faults;
    for (int i = 0; i < text.size(); ++i) {
        const int strokes = i < here.size() ? ShapeOf(here[i]).strokes : 0;
        const int all = i < large.size() ? ShapeOf(large[i]).strokes : 0;
        if (strokes == 0 && all > 0)
            faults.append(QStringLiteral("\"%1\" is not drawn").arg(text[i]));
        else if (strokes < all)
            faults.append(QStringLiteral("\"%1\" is drawn incompletely").arg(text[i]));
    }
    return faults;
}

const QVector<DigitShape> &ReferenceShapes(const QString &family)
{
    static QHash<QString, QVector<DigitShape>> known;
    auto shapes = known.find(family);
    if (shapes == known.end()) {
        shapes = known.insert(family, {});
        for (const QImage &digit : DigitsOf(GlyphTypeface(family, kReferencePoints)))
            shapes->append(ShapeOf(digit));
    }
    return *shapes;
}

QString Difference(int digit, const DigitShape &here, const DigitShape &large)
{
    if (here.strokes == 0)
        return QStringLiteral("%1 is not drawn").arg(digit);
    const bool differsInHoles = here.holes != large.holes;
    const int count = differsInHoles ? here.holes : here.strokes;
    return QStringLiteral("%1 has %2 %3%4 instead of %5")
        .arg(digit)
        .arg(count)
        .arg(QLatin1String(differsInHoles ? "hole" : "stroke"),
             QLatin1String(count == 1 ? "" : "s"))
        .arg(differsInHoles ? large.holes : large.strokes);
}

QStringList DigitFaults(const QString &family, const QVector<QImage> &digits)
{
    const QVector<DigitShape> &large = ReferenceShapes(family);
    QStringList faults;
    for (int digit = 0; digit < digits.size() && digit < large.size(); ++digit) {
        const DigitShape shape = ShapeOf(digits[digit]);
        if (shape != large[digit])
            faults.append(Difference(digit, shape, large[digit]));
    }
    for (int one = 0; one < digits.size(); ++one) {
        for (int other = one + 1; other < digits.size(); ++other) {
            if (InkOf(digits[one]) == InkOf(digits[other]))
                faults.append(QStringLiteral("%1 and %2 look alike").arg(one).arg(other));
        }
    }
    return faults;
}

} // namespace

QString LegibilityFault(const QString &family, int points, const QString &separators)
{
    static QHash<QString, QString> known;
    if (points > kLargestChecked)
        return {};
    const QString key = QStringLiteral("%1\n%2\n%3").arg(family).arg(points).arg(separators);
    const auto found = known.constFind(key);
    if (found != known.constEnd())
        return *found;
    const QFont font = GlyphTypeface(family, points);
    QStringList faults = DigitFaults(family, DigitsOf(font));
    faults += SeparatorFaults(family, font, separators);
    constexpr int kMaxListed = 3;
    const QString rest = faults.size() > kMaxListed
        ? QStringLiteral(" and %1 more").arg(faults.size() - kMaxListed)
        : QString();
    return *known.insert(key, faults.mid(0, kMaxListed).join(QStringLiteral(", ")) + rest);
}

int NearestLegibleSize(const QString &family, int points, const QString &separators)
{
    for (int away = 1; away <= kLargestChecked; ++away) {
        for (const int size : {points + away, points - away}) {
            if (size > 0 && size <= kLargestChecked
                && LegibilityFault(family, size, separators).isEmpty())
                return size;
        }
    }
    return 0;
}

QVector<int> LegibleSizes(const QString &family, const QString &separators)
{
    QVector<int> sizes;
    for (int size = 1; size <= kLargestChecked; ++size) {
        if (LegibilityFault(family, size, separators).isEmpty())
            sizes.append(size);
    }
    return sizes;
}

} // namespace ClockTool
