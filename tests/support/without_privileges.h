// Permissions bind everyone but root: what a test of them does, it does as nobody.
#pragma once

#include <unistd.h>

class WithoutPrivileges
{
public:
    WithoutPrivileges() : m_before(geteuid()) { m_dropped = m_before != 0 || seteuid(65534) == 0; }
    ~WithoutPrivileges()
    {
        if (m_before == 0 && seteuid(0) != 0)
            _exit(1);
    }
    bool Dropped() const { return m_dropped; }

private:
    uid_t m_before;
    bool m_dropped;
};
