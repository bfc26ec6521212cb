// Glyph images in which every column has the colour of a letter, so that a composed picture can be
// read back as text, one letter a column.
#pragma once

#include "clock_node.h"

#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QString>
#include <QTemporaryDir>

class LetteredGlyphs
{
public:
    explicit LetteredGlyphs(Lw::HNodeClock::HClockNode &node) : m_node(node) { }

    /// Records an image of that height under a key, one column a letter.
    QString Write(const QString &key, const QString &letters, int height)
    {
        QImage image(letters.size(), height, QImage::Format_ARGB32);
        for (int x = 0; x < letters.size(); ++x) {
            for (int y = 0; y < height; ++y)
                image.setPixelColor(x, y, Colour(letters.at(x)));
        }
        const QString path = m_directory.filePath(key + QLatin1String(".png"));
        if (!image.save(path))
            qFatal("cannot write %s", qPrintable(path));
        m_node.SetFilePath(key, path, QString(), -1, 3);
        return path;
    }

    /// A strip of equal cells: each letter as wide as a cell.
    static QString Cells(const QString &letters, int cellWidth)
    {
        QString all;
        for (const QChar letter : letters)
            all += QString(cellWidth, letter);
        return all;
    }

    /// Digits three wide, labels Y M D four wide and seven high, separator image "," and "/" of
    /// five columns, minus of four, blank of two, month names of six; time digits two wide, labels
    /// h m s three wide and six high, ":" one wide, marks of three and four; seventeen lunar cells
    /// a to q two wide and nine high; weekdays one to seven wide.
    void WriteAll()
    {
        Write("_dateNumber", Cells("0123456789", 3), 8);
        Write("_dateCh", Cells("YMD", 4), 7);
        Write("_dateChar", ",,///", 7);
        Write("_Minus", "----", 7);
        Write("_space", "  ", 7);
        const QString months = "JFMAVULGSONC";
        for (int i = 0; i < 12; ++i)
            Write(QStringLiteral("_dateEnMonth_%1").arg(i + 1), QString(6, months.at(i)), 7);
        Write("_timeNumber", Cells("0123456789", 2), 6);
        Write("_timeCh", Cells("hms", 3), 6);
        Write("_timeChar", ":", 6);
        Write("_timeAM", " AA", 6);
        Write("_timePM", " PPP", 6);
        Write("_lunar", Cells("abcdefghijklmnopq", 2), 9);
        Write("_toptext", "LED", 5);
        const char *const families[] = {"_chWeek_%1", "_enWeek_%1", "_enWeekSim_%1",
                                        "_PersiaWeek_%1"};
        const QString letters = "wxyz";
        for (int family = 0; family < 4; ++family) {
            for (int day = 1; day <= 7; ++day) {
                Write(QString::fromLatin1(families[family]).arg(day),
                      QString(day, letters.at(family)), 5);
            }
        }
    }

    /// The letters of a picture, from its first row; "_" where nothing was drawn.
    static QString Read(const QPixmap &pixmap)
    {
        const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
        QString letters;
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, 0);
            letters += qAlpha(pixel) == 0 ? QChar('_') : QChar(qRed(pixel));
        }
        return letters;
    }

private:
    static QColor Colour(QChar letter)
    {
        return letter == ' ' ? QColor(0, 0, 0, 0) : QColor(letter.unicode(), 100, 50);
    }

    Lw::HNodeClock::HClockNode &m_node;
    QTemporaryDir m_directory;
};
