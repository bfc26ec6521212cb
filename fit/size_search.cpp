// fit/: finds the sizes that fit, by bisection.
#include "clock_parts.h"

#include "glyph/glyph_picture.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace ClockFit {

using namespace Lw::HNodeClock;

namespace {

constexpr int kMaxTrials = 10;

std::size_t Index(GlyphFont font)
{
    return static_cast<std::size_t>(font);
}

int EffectiveSize(int points)
{
    return points > 0 ? points : kDefaultPoints;
}

bool HasFont(const Cut &cut)
{
    return FontOf(cut.part).has_value();
}

bool FitsAll(ClockCheck &check, HClockNode &node, const FontSizes &sizes, const QRect &visible)
{
    const QVector<Cut> cuts = check.Cuts(node, sizes, visible);
    return std::none_of(cuts.cbegin(), cuts.cend(), HasFont);
}

// Bisects for the largest number from `least` to `most` that `succeeds`, in at most kMaxTrials
// trials; `least` - 1 if none does.
template<typename Trial>
int LargestThat(int least, int most, Trial succeeds)
{
    for (int trial = 0; least <= most && trial < kMaxTrials; ++trial) {
        const int middle = least + (most - least) / 2;
        if (succeeds(middle))
            least = middle + 1;
        else
            most = middle - 1;
    }
    return least - 1;
}

int SizeOfPart(ClockCheck &check, HClockNode &node, Part part, const QRect &visible)
{
    FontSizes sizes = SizesOf(node);
    int &points = sizes[Index(*FontOf(part))];
    const auto fits = [&](int tried) {
        points = tried;
        const QVector<Cut> cuts = check.Cuts(node, sizes, visible);
        return std::none_of(cuts.cbegin(), cuts.cend(),
                            [part](const Cut &cut) { return cut.part == part; });
    };
    return LargestThat(1, std::min(EffectiveSize(points), kLargestFontSize) - 1, fits);
}

// A factor as a fraction, so that sizes are rounded exactly.
struct Fraction
{
    int numerator;
    int denominator;

    double Value() const { return static_cast<double>(numerator) / denominator; }
    bool operator<(const Fraction &other) const
    {
        return qint64(numerator) * other.denominator < qint64(other.numerator) * denominator;
    }
    bool operator==(const Fraction &other) const
    {
        return qint64(numerator) * other.denominator == qint64(other.numerator) * denominator;
    }
};

QVector<GlyphFont> FontsShown(HClockNode &node)
{
    QVector<GlyphFont> fonts;
    for (const Part part : PartsShown(node)) {
        if (FontOf(part))
            fonts.append(*FontOf(part));
    }
    return fonts;
}

FontSizes Scaled(HClockNode &node, const Fraction &factor)
{
    FontSizes sizes = SizesOf(node);
    for (const GlyphFont font : FontsShown(node)) {
        int &points = sizes[Index(font)];
        const qint64 scaled = qint64(EffectiveSize(points)) * factor.numerator / factor.denominator;
        points = static_cast<int>(qBound(qint64(1), scaled, qint64(kLargestFontSize)));
    }
    return sizes;
}

// The factors below 1 at which some rounded size changes, in order; if there are too many, a sample
// of them.
QVector<Fraction> StepsBelowOne(HClockNode &node)
{
    const FontSizes sizes = SizesOf(node);
    QVector<Fraction> steps;
    for (const GlyphFont font : FontsShown(node)) {
        const int points = std::min(EffectiveSize(sizes[Index(font)]), kLargestFontSize);
        for (int size = 1; size < points; ++size)
            steps.append({size, points});
    }
    std::sort(steps.begin(), steps.end());
    steps.erase(std::unique(steps.begin(), steps.end()), steps.end());
    constexpr int kMaxSteps = (1 << kMaxTrials) - 1;
    QVector<Fraction> some;
    for (int i = 0; steps.size() > kMaxSteps && i < kMaxSteps; ++i)
        some.append(steps[static_cast<int>(qint64(i) * steps.size() / kMaxSteps)]);
    return some.isEmpty() ? steps : some;
}

} // namespace

int SizeWithAllInk(ClockCheck &check, HClockNode &node, Part part, const QRect &visible)
{
    FontSizes sizes = SizesOf(node);
    int &points = sizes[Index(*FontOf(part))];
    const int own = EffectiveSize(points);
    const auto isPart = [part](const auto &finding) { return finding.part == part; };
    for (int distance = 1; distance <= kMaxTrials / 2; ++distance) {
        for (const int tried : {own - distance, own + distance}) {
            points = tried;
            if (tried < 1 || tried > kLargestFontSize)
                continue;
            const QVector<Clipped> clipped = check.ClippedParts(node, sizes);
            const QVector<Cut> cuts = check.Cuts(node, sizes, visible);
            if (std::none_of(clipped.cbegin(), clipped.cend(), isPart)
                && std::none_of(cuts.cbegin(), cuts.cend(), isPart))
                return tried;
        }
    }
    return 0;
}

QVector<PartSize> SizesOfParts(ClockCheck &check, HClockNode &node, const QVector<Cut> &cuts,
                               const QRect &visible)
{
    QVector<PartSize> sizes;
    for (const Cut &cut : cuts) {
        const bool isKnown = !sizes.isEmpty() && sizes.last().part == cut.part;
        if (HasFont(cut) && !isKnown)
            sizes.append({cut.part, SizeOfPart(check, node, cut.part, visible)});
    }
    return sizes;
}

CommonSizes ShrunkSizes(ClockCheck &check, HClockNode &node, const QRect &visible)
{
    const QVector<Fraction> steps = StepsBelowOne(node);
    const int largest = LargestThat(0, static_cast<int>(steps.size()) - 1, [&](int step) {
        return FitsAll(check, node, Scaled(node, steps[step]), visible);
    });
    if (largest < 0)
        return {};
    return {steps[largest].Value(), Scaled(node, steps[largest])};
}

std::optional<FontSizes> SizesThatFit(ClockCheck &check, HClockNode &node, const QRect &visible)
{
    FontSizes sizes = SizesOf(node);
    if (FitsAll(check, node, sizes, visible))
        return sizes;
    const QVector<PartSize> parts =
        SizesOfParts(check, node, check.Cuts(node, sizes, visible), visible);
    if (parts.size() == 1 && parts.first().points > 0) {
        sizes[Index(*FontOf(parts.first().part))] = parts.first().points;
        if (FitsAll(check, node, sizes, visible))
            return sizes;
    }
    const CommonSizes common = ShrunkSizes(check, node, visible);
    if (common.factor > 0)
        return common.sizes;
    return std::nullopt;
}

namespace {

bool IsNew(const Overlap &overlap, const QVector<Overlap> &before)
{
    return std::none_of(before.cbegin(), before.cend(), [&overlap](const Overlap &other) {
        return other.lower == overlap.lower && other.upper == overlap.upper;
    });
}

} // namespace

// Steps are points of the largest font. Twice the area's height is too large for any text.
CommonSizes GrownSizes(ClockCheck &check, HClockNode &node, const QRect &visible)
{
    const FontSizes own = SizesOf(node);
    if (!FitsAll(check, node, own, visible))
        return {};
    const QVector<Overlap> before = check.Overlaps(node, own);
    int largest = 0;
    for (const GlyphFont font : FontsShown(node))
        largest = std::max(largest, EffectiveSize(own[Index(font)]));
    if (largest == 0)
        return {1, own};
    const auto fits = [&](int points) {
        const FontSizes sizes = Scaled(node, {points, largest});
        if (!FitsAll(check, node, sizes, visible))
            return false;
        const QVector<Overlap> overlaps = check.Overlaps(node, sizes);
        return std::none_of(overlaps.cbegin(), overlaps.cend(),
                            [&before](const Overlap &one) { return IsNew(one, before); });
    };
    const int points = LargestThat(largest + 1, 2 * node.Size().height() + 1, fits);
    return {static_cast<double>(points) / largest, Scaled(node, {points, largest})};
}

} // namespace ClockFit
