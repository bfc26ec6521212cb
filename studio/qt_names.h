// studio/: names that differ between Qt 5 and Qt 6.
#pragma once

#include <QApplication>
#include <QLibraryInfo>
#include <QMouseEvent>

namespace ClockStudio {

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)

inline QPoint PositionOf(const QMouseEvent &event)
{
    return event.position().toPoint();
}

inline QString QtTranslations()
{
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
}

inline void ScaleForScreen() { } // always done

#else

inline QPoint PositionOf(const QMouseEvent &event)
{
    return event.pos();
}

inline QString QtTranslations()
{
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
}

/// For screens with many pixels per inch; called before there is an application.
inline void ScaleForScreen()
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
}

#endif

} // namespace ClockStudio
