// studio/window: sets up the QApplication: names, icon, translations.
#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QApplication;
QT_END_NAMESPACE

namespace ClockStudio {

/// Whether a window can be opened, judging by the environment and the arguments.
bool HasDisplay(int argc, char **argv);

/// Sets names, icon, translations and the layout direction. Returns which fonts the window lacks;
/// empty if none.
QString SetUpApplication(QApplication &application);

} // namespace ClockStudio
