// A program whose system clock is off by what a file says; see tests/player/stepping_clock. For
// tests that are built with STEPPING_CLOCK_LIBRARY.
#pragma once

#include <QProcessEnvironment>
#include <QString>

/// The file holds milliseconds as a 64-bit number of the machine, and may change at any time.
inline QProcessEnvironment WithSteppingClock(QProcessEnvironment environment, const QString &file)
{
    environment.insert("LD_PRELOAD", STEPPING_CLOCK_LIBRARY);
    environment.insert("STEPPING_CLOCK", file);
    // A sanitizer wants to be loaded first, and is not.
    environment.insert("ASAN_OPTIONS",
                       environment.value("ASAN_OPTIONS") + ":verify_asan_link_order=0");
    return environment;
}
