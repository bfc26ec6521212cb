// What a plugin asks of the process it is in.
#include "minimal_host.h"

#include "happconfig.h"
#include "hnode.h"
#include "hpluginmanager.h"

#include <QTemporaryDir>

namespace {

// Both directories lie within one of this host's own, gone when the process is.
QString OwnDirectory(const QString &name)
{
    static const QTemporaryDir directory;
    QDir(directory.path()).mkpath(name);
    return directory.filePath(name) + QLatin1Char('/');
}

// Between 0xAARRGGBB and 0x00BBGGRR.
quint32 WithRedAndBlueExchanged(quint32 colour)
{
    return (colour & 0xff00ff00u) | (colour & 0xffu) << 16 | (colour >> 16 & 0xffu);
}

} // namespace

namespace Lw {

HAppConfig::HAppConfig() : d(nullptr) { }

HAppConfig::~HAppConfig() = default;

HAppConfig *HAppConfig::instance()
{
    static HAppConfig config;
    return &config;
}

QString HAppConfig::ClockOutputPath()
{
    return OwnDirectory(QStringLiteral("glyphs"));
}

QString HAppConfig::TempProgramImagePath()
{
    return OwnDirectory(QStringLiteral("temporary"));
}

QColor HAppConfig::IntToColor(int value)
{
    return QColor(QRgb(WithRedAndBlueExchanged(static_cast<quint32>(value))));
}

int HAppConfig::ColorToInt(QColor color)
{
    return static_cast<int>(WithRedAndBlueExchanged(color.rgb()) & 0xffffffu);
}

int HAppConfig::NameToIntColor(QString name)
{
    QColor color(Qt::black);
    if (QColor::isValidColor(name))
        color.setNamedColor(name);
    return ColorToInt(color);
}

// Not the format that asks for smooth hands.
int HAppConfig::RenderImageFormat()
{
    return QImage::Format_ARGB32_Premultiplied;
}

void HAppConfig::GetTimeInfo(int &utcOffsetSeconds, bool &daylightSaving)
{
    utcOffsetSeconds = 3600;
    daylightSaving = false;
}

int BooleanToInt(QString text)
{
    return QStringList {QStringLiteral("true")}.contains(text);
}

class HPluginManager::Private
{ };

HPluginManager::HPluginManager() = default;

HPluginManager::~HPluginManager() = default;

HPluginManager *HPluginManager::instance()
{
    static HPluginManager manager;
    return &manager;
}

bool HPluginManager::SuportAlphaBlend(Lw::HNode *node)
{
    MinimalHost::Calls() << QStringLiteral("SuportAlphaBlend ")
            + (node ? node->objectName() : QString());
    return true;
}

} // namespace Lw
