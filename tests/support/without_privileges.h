// Permissions bind everyone but root: what a test of them does, it does as nobody.
#pragma once

#include <unistd.h>

class WithoutPrivileges
{
public:
    // The real identity too: existence and permissions are asked in its name.
    WithoutPrivileges() : m_before(geteuid())
    {
        m_dropped = m_before != 0 || setresuid(kNobody, kNobody, 0) == 0;
    }
    ~WithoutPrivileges()
    {
        if (m_before == 0 && setresuid(0, 0, 0) != 0)
            _exit(1);
    }
    bool Dropped() const { return m_dropped; }

private:
    static constexpr uid_t kNobody = 65534;
    uid_t m_before;
    bool m_dropped;
};
