#include "notice.h"

#include <QPainter>

#include <algorithm>

namespace ClockPlayer {

namespace {

struct Row
{
    const char *code;
    const char *text;
};

// In the order of the enumeration.
constexpr Row kRows[] = {
    {"P1", "NO PROGRAM"}, {"P2", "PROGRAM ERROR"}, {"P3", "NO PLUGIN"},
    {"G1", "NO GLYPHS"},  {"T1", "TIME NOT SET"},
};

const Row &RowOf(Notice notice)
{
    return kRows[static_cast<int>(notice)];
}

constexpr int kCellWidth = 6; // a letter and the gap after it
constexpr int kLetterWidth = 5;
constexpr int kLetterHeight = 7;
constexpr int kCodeScale = 3; // size of the code relative to the text
constexpr QRgb kPaper = qRgb(0, 0, 64);
constexpr QRgb kInk = qRgb(255, 255, 255);

struct Letter
{
    char character;
    const char *rows; // seven times five, from the top left
};

// clang-format off
constexpr Letter kLetters[] = {
    {'1', "..#.." ".##.." "..#.." "..#.." "..#.." "..#.." ".###."},
    {'2', ".###." "#...#" "....#" "...#." "..#.." ".#..." "#####"},
    {'3', ".###." "#...#" "....#" "..##." "....#" "#...#" ".###."},
    {'A', ".###." "#...#" "#...#" "#####" "#...#" "#...#" "#...#"},
    {'E', "#####" "#...." "#...." "####." "#...." "#...." "#####"},
    {'G', ".###." "#...#" "#...." "#.###" "#...#" "#...#" ".###."},
    {'H', "#...#" "#...#" "#...#" "#####" "#...#" "#...#" "#...#"},
    {'I', ".###." "..#.." "..#.." "..#.." "..#.." "..#.." ".###."},
    {'L', "#...." "#...." "#...." "#...." "#...." "#...." "#####"},
    {'M', "#...#" "##.##" "#.#.#" "#.#.#" "#...#" "#...#" "#...#"},
    {'N', "#...#" "##..#" "#.#.#" "#..##" "#...#" "#...#" "#...#"},
    {'O', ".###." "#...#" "#...#" "#...#" "#...#" "#...#" ".###."},
    {'P', "####." "#...#" "#...#" "####." "#...." "#...." "#...."},
    {'R', "####." "#...#" "#...#" "####." "#.#.." "#..#." "#...#"},
    {'S', ".####" "#...." "#...." ".###." "....#" "....#" "####."},
    {'T', "#####" "..#.." "..#.." "..#.." "..#.." "..#.." "..#.."},
    {'U', "#...#" "#...#" "#...#" "#...#" "#...#" "#...#" ".###."},
    {'Y', "#...#" "#...#" ".#.#." "..#.." "..#.." "..#.." "..#.."},
};
// clang-format on

const char *RowsOf(char character)
{
    const auto found =
        std::find_if(std::begin(kLetters), std::end(kLetters),
                     [character](const Letter &letter) { return letter.character == character; });
    return found == std::end(kLetters) ? nullptr : found->rows;
}

int WidthOf(const QString &text)
{
    return text.size() * kCellWidth - 1;
}

// Each pixel of the letters is painted as a square of `side` pixels.
void PaintText(QPainter &painter, QPoint topLeft, const QString &text, int side)
{
    for (int i = 0; i < text.size(); ++i) {
        const char *const rows = RowsOf(text[i].toLatin1());
        for (int pixel = 0; rows && pixel < kLetterWidth * kLetterHeight; ++pixel) {
            const QPoint place(i * kCellWidth + pixel % kLetterWidth, pixel / kLetterWidth);
            if (rows[pixel] == '#')
                painter.fillRect(QRect(topLeft + place * side, QSize(side, side)), QColor(kInk));
        }
    }
}

} // namespace

QString NoticeCode(Notice notice)
{
    return QLatin1String(RowOf(notice).code);
}

QString NoticeText(Notice notice)
{
    return QLatin1String(RowOf(notice).text);
}

QImage NoticePicture(Notice notice, QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    if (picture.isNull())
        return picture;
    picture.fill(kPaper);
    const QString code = NoticeCode(notice);
    const QString text = NoticeText(notice);
    constexpr int kLines = kLetterHeight * (kCodeScale + 1) + 3; // with the space between both
    const int fitting = std::min(size.width() / (WidthOf(text) + 2), size.height() / (kLines + 2));
    const int side = std::max(1, fitting);
    QPainter painter(&picture);
    const int top = (size.height() - kLines * side) / 2;
    const int codeSide = side * kCodeScale;
    PaintText(painter, {(size.width() - WidthOf(code) * codeSide) / 2, top}, code, codeSide);
    PaintText(
        painter,
        {(size.width() - WidthOf(text) * side) / 2, top + kLetterHeight * codeSide + 3 * side},
        text, side);
    return picture;
}

} // namespace ClockPlayer
