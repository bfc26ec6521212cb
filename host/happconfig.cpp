#include "happconfig.h"

#include "lw_types.h"

#include <QDir>
#include <QImage>

namespace Lw {

namespace {

QString UsableDirectory(QString directory)
{
    if (directory.isEmpty())
        return directory;
    QDir().mkpath(directory);
    if (!directory.endsWith(QLatin1Char('/')))
        directory += QLatin1Char('/');
    return directory;
}

} // namespace

class HAppConfig::Private
{
public:
    QString clockOutputPath;
    QString tempProgramImagePath;
    int utcOffsetSeconds = 0;
    bool daylightSaving = false;
    int renderImageFormat = QImage::Format_ARGB32;
};

HAppConfig::HAppConfig() : d(new Private) { }

HAppConfig::~HAppConfig()
{
    delete d;
}

HAppConfig *HAppConfig::instance()
{
    static HAppConfig config;
    return &config;
}

QString HAppConfig::ClockOutputPath()
{
    Private *const d = instance()->d;
    if (d->clockOutputPath.isEmpty())
        SetClockOutputPath(QDir::tempPath() + QLatin1String("/lw_clock"));
    return d->clockOutputPath;
}

QString HAppConfig::TempProgramImagePath()
{
    Private *const d = instance()->d;
    if (d->tempProgramImagePath.isEmpty())
        SetTempProgramImagePath(QDir::tempPath() + QLatin1String("/lw_clock_temp"));
    return d->tempProgramImagePath;
}

QColor HAppConfig::IntToColor(int value)
{
    const auto packed = static_cast<LWColor>(value);
    return QColor(RedOf(packed), GreenOf(packed), BlueOf(packed));
}

int HAppConfig::ColorToInt(QColor color)
{
    if (!color.isValid())
        return 0;
    return static_cast<int>(PackedColor(color.red(), color.green(), color.blue()));
}

int HAppConfig::NameToIntColor(QString name)
{
    return ColorToInt(QColor(name));
}

int HAppConfig::RenderImageFormat()
{
    return d->renderImageFormat;
}

void HAppConfig::GetTimeInfo(int &utcOffsetSeconds, bool &daylightSaving)
{
    utcOffsetSeconds = d->utcOffsetSeconds;
    daylightSaving = d->daylightSaving;
}

void HAppConfig::SetClockOutputPath(QString directory)
{
    instance()->d->clockOutputPath = UsableDirectory(directory);
}

void HAppConfig::SetTempProgramImagePath(QString directory)
{
    instance()->d->tempProgramImagePath = UsableDirectory(directory);
}

void HAppConfig::SetTimeInfo(int utcOffsetSeconds, bool daylightSaving)
{
    instance()->d->utcOffsetSeconds = utcOffsetSeconds;
    instance()->d->daylightSaving = daylightSaving;
}

void HAppConfig::SetRenderImageFormat(int format)
{
    instance()->d->renderImageFormat = format;
}

int BooleanToInt(QString text)
{
    return text == QLatin1String("true") ? 1 : 0;
}

} // namespace Lw
