// tests/support: types by the names under which they are registered with Qt.
#pragma once

#include <QMetaType>

/// The number of the type; 0 for an unknown name.
inline int TypeNamed(const char *name)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QMetaType::fromName(name).id();
#else
    return QMetaType::type(name);
#endif
}
