// studio/window: the window that brings everything together.
// What the whole application has: its names, its looks, its languages.
#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QApplication;
QT_END_NAMESPACE

namespace ClockStudio {

/// Whether there is a display to open a window on, by the environment and the arguments.
bool HasDisplay(int argc, char **argv);

/// Names, icon, style, and the texts in the user's language.
void SetUpApplication(QApplication &application);

} // namespace ClockStudio
