#include "templates.h"

#include <QCoreApplication>
#include <QFile>

namespace ClockStudio {

namespace {

struct TemplateText
{
    const char *name;
    const char *title;
    const char *description;
};

#define WORDS(text) QT_TRANSLATE_NOOP("ClockStudio::Templates", text)

// clang-format off
constexpr TemplateText kTemplates[] = {
    {"station", WORDS("Railway station"), WORDS("A station clock beside the time, the date and the platform")},
    {"airport", WORDS("Airport"), WORDS("Local time and UTC above four cities")},
    {"offices", WORDS("World offices"), WORDS("Five dials with their cities")},
    {"stock_exchange", WORDS("Stock exchange"), WORDS("The time at four exchanges")},
    {"bank", WORDS("Bank"), WORDS("A plain dial with the date")},
    {"school", WORDS("School"), WORDS("Time, weekday and date, readable from a distance")},
    {"factory", WORDS("Factory shift"), WORDS("Large time with seconds, the shift and the date")},
    {"prayer_hall", WORDS("Prayer hall"), WORDS("A dial with the Persian date and weekday")},
    {"lunar", WORDS("Chinese date and lunar date"), WORDS("The time with the Chinese date, weekday and lunar date")},
    {"hospital", WORDS("Hospital"), WORDS("A clear dial with a second hand, and the weekday")},
    {"sports_hall", WORDS("Sports hall"), WORDS("Only the time, with seconds")},
    {"hotel", WORDS("Hotel lobby"), WORDS("Three picture clocks with their cities")},
    {"twelve_hours", WORDS("12-hour clock"), WORDS("The time with AM or PM")},
    {"ticker", WORDS("One line"), WORDS("Everything on one line, for long narrow walls")},
};
// clang-format on

#undef WORDS

QString Translated(const char *text)
{
    return QCoreApplication::translate("ClockStudio::Templates", text);
}

} // namespace

QVector<Template> Templates()
{
    QVector<Template> templates;
    for (const TemplateText &text : kTemplates)
        templates.append(
            {QLatin1String(text.name), Translated(text.title), Translated(text.description)});
    return templates;
}

QByteArray TemplateBytes(const QString &name)
{
    QFile file(QStringLiteral(":/templates/%1.xml").arg(name));
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace ClockStudio
