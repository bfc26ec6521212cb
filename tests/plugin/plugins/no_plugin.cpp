// An ordinary library.
#include <QtGlobal>

extern "C" Q_DECL_EXPORT int Answer();

int Answer()
{
    return 42;
}
