#include "ink_mask.h"

#include <QtAlgorithms>

#include <algorithm>

namespace ClockFit {

using namespace Lw::HNodeClock;

namespace {

constexpr int kBits = 32; // of a word

int WordsFor(int width)
{
    return (width + kBits - 1) / kBits;
}

bool IsPainted(QRgb pixel)
{
    return qAlpha(pixel) != 0;
}

bool IsChosen(const QVector<bool> &chosen, int piece)
{
    return chosen.isEmpty() || (piece < chosen.size() && chosen[piece]);
}

// The part of a piece that its element shows, in the strip's pixels.
QRect SourceOf(const Piece &piece, const Element &element)
{
    const int width = std::min<int>(piece.width, element.Width() - piece.x);
    return {piece.sourceX, 0, width, std::min(piece.strip->Height(), element.Height())};
}

} // namespace

InkMask::InkMask(const QRect &box) : m_box(box), m_words(WordsFor(box.width()))
{
    // One spare word behind the last row.
    if (!box.isEmpty())
        m_bits.resize(m_words * box.height() + 1);
}

InkMask::InkMask(const Element &element, const QPoint &topLeft, const QVector<bool> &chosen)
    : InkMask(QRect(topLeft, element.Size()))
{
    for (int i = 0; i < element.Count(); ++i) {
        const Piece &piece = element.At(i);
        const QRect source = SourceOf(piece, element);
        if (IsChosen(chosen, i) && !source.isEmpty())
            AddStrip(*piece.strip, source, topLeft + QPoint(piece.x, 0));
    }
}

template<typename IsInk>
void InkMask::AddImage(const QImage &image, const QPoint &target, IsInk isInk)
{
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < pixels.height(); ++y) {
        const auto *const row = reinterpret_cast<const QRgb *>(pixels.constScanLine(y));
        quint32 *const to = m_bits.data() + (target.y() + y - m_box.top()) * m_words;
        for (int x = 0; x < pixels.width(); ++x) {
            const int at = target.x() + x - m_box.left();
            if (isInk(row[x]))
                to[at / kBits] |= 1u << at % kBits;
        }
    }
}

InkMask::InkMask(const QImage &image, const QPoint &topLeft, QRgb colour)
    : InkMask(QRect(topLeft, image.size()))
{
    AddImage(image, topLeft, [colour](QRgb pixel) { return pixel == colour; });
}

InkMask InkMask::OfPicture(const QImage &picture, const QPoint &topLeft)
{
    InkMask mask(QRect(topLeft, picture.size()));
    mask.AddImage(picture, topLeft, IsPainted);
    return mask;
}

void InkMask::AddStrip(const GlyphStrip &strip, const QRect &source, const QPoint &target)
{
    if (!strip.IsInk())
        return AddImage(strip.Pixmap().copy(source).toImage(), target, IsPainted);
    for (int y = 0; y < source.height(); ++y) {
        quint32 *const to = m_bits.data() + (target.y() + y - m_box.top()) * m_words;
        const quint32 *const from = strip.InkRow(y);
        for (int x = 0; x < source.width(); x += kBits) {
            const int column = source.x() + x;
            const quint32 *const word = from + column / kBits;
            quint64 ink = (word[0] | static_cast<quint64>(word[1]) << kBits) >> column % kBits;
            const int count = std::min(kBits, source.width() - x);
            ink &= (Q_UINT64_C(1) << count) - 1;
            const int at = target.x() + x - m_box.left();
            ink <<= at % kBits;
            to[at / kBits] |= static_cast<quint32>(ink);
            if (ink >> kBits != 0)
                to[at / kBits + 1] |= static_cast<quint32>(ink >> kBits);
        }
    }
}

quint32 InkMask::Columns(int y, int x) const
{
    const int from = x - m_box.left();
    if (from <= -kBits || from >= m_words * kBits)
        return 0;
    const quint32 *const row = Row(y);
    if (from < 0)
        return row[0] << -from;
    const quint32 next = from / kBits + 1 < m_words ? row[from / kBits + 1] : 0;
    return static_cast<quint32>((row[from / kBits] | static_cast<quint64>(next) << kBits)
                                >> from % kBits);
}

QRect InkMask::Bounds() const
{
    int left = m_box.width();
    int right = -1;
    int top = m_box.bottom() + 1; // until there is ink
    int bottom = top;
    for (int y = m_box.top(); y <= m_box.bottom(); ++y) {
        const quint32 *const row = Row(y);
        const quint32 *const end = row + m_words;
        const auto isInk = [](quint32 word) { return word != 0; };
        const quint32 *const first = std::find_if(row, end, isInk);
        if (first == end)
            continue;
        const quint32 *last = end - 1;
        while (*last == 0)
            --last;
        top = std::min(top, y);
        bottom = y;
        left = std::min(left,
                        static_cast<int>(first - row) * kBits
                            + static_cast<int>(qCountTrailingZeroBits(*first)));
        right = std::max(right,
                         static_cast<int>(last - row + 1) * kBits - 1
                             - static_cast<int>(qCountLeadingZeroBits(*last)));
    }
    if (right < 0)
        return QRect();
    return QRect(QPoint(m_box.left() + left, top), QPoint(m_box.left() + right, bottom));
}

int InkMask::Count() const
{
    int count = 0;
    for (const quint32 word : m_bits)
        count += static_cast<int>(qPopulationCount(word));
    return count;
}

bool InkMask::HasInkIn(const QRect &rect) const
{
    const QRect shared = m_box & rect;
    for (int y = shared.top(); y <= shared.bottom(); ++y) {
        for (int x = shared.left(); x <= shared.right(); x += kBits) {
            const int count = std::min(kBits, shared.right() - x + 1);
            const quint32 wanted = count < kBits ? (1u << count) - 1 : ~0u;
            if ((Columns(y, x) & wanted) != 0)
                return true;
        }
    }
    return false;
}

int InkMask::Common(const InkMask &other) const
{
    const QRect shared = m_box & other.m_box;
    const int firstWord = (shared.left() - m_box.left()) / kBits;
    const int lastWord = (shared.right() - m_box.left()) / kBits;
    int count = 0;
    for (int y = shared.top(); y <= shared.bottom(); ++y) {
        const quint32 *const row = Row(y);
        for (int word = firstWord; word <= lastWord; ++word) {
            if (row[word] == 0)
                continue;
            const quint32 both = row[word] & other.Columns(y, m_box.left() + word * kBits);
            if (both != 0) // rarely: most texts do not overlap
                count += static_cast<int>(qPopulationCount(both));
        }
    }
    return count;
}

void InkMask::Unite(const InkMask &other)
{
    if (other.m_box.isEmpty())
        return;
    InkMask both(m_box | other.m_box);
    for (const InkMask *mask : {static_cast<const InkMask *>(this), &other}) {
        for (int y = mask->m_box.top(); y <= mask->m_box.bottom(); ++y) {
            quint32 *const to = both.m_bits.data() + (y - both.m_box.top()) * both.m_words;
            for (int word = 0; word < both.m_words; ++word)
                to[word] |= mask->Columns(y, both.m_box.left() + word * kBits);
        }
    }
    *this = both;
}

QRect InkBounds::Of(const Element &element, const QVector<bool> &chosen)
{
    QRect bounds;
    for (int i = 0; i < element.Count(); ++i) {
        Piece piece = element.At(i);
        const QRect source = SourceOf(piece, element);
        if (!IsChosen(chosen, i) || source.isEmpty())
            continue;
        piece.width = static_cast<quint16>(source.width());
        const QRect &ink = OfPiece(piece, source.height());
        if (!ink.isEmpty())
            bounds |= ink.translated(piece.x, 0);
    }
    return bounds;
}

// All elements that show a strip have the same height, so it need not be part of the key.
const QRect &InkBounds::OfPiece(const Piece &piece, int height)
{
    const quint64 key = static_cast<quint64>(piece.stripKey) << 32
        | static_cast<quint64>(piece.sourceX & 0xffff) << 16
        | static_cast<quint64>(piece.width & 0xffff);
    const auto known = m_known.constFind(key);
    if (known != m_known.constEnd())
        return *known;
    Element element(piece.width, height);
    element.Add(*piece.strip, piece.sourceX, piece.width);
    return *m_known.insert(key, InkMask(element, QPoint(0, 0)).Bounds());
}

} // namespace ClockFit
