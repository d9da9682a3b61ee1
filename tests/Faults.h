#pragma once

// Faults outside the library that last as long as an object lives. Nothing may be printed meanwhile.

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

namespace quarn::test {

/// Limits files to 8 bytes or the given number, also in child processes.
class FullDisk {
public:
    explicit FullDisk(rlim_t room = 8) {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small{room, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    void (*m_handler)(int) = std::signal(SIGXFSZ, SIG_IGN);
    rlimit m_before{};
};

/// Drops the privileges of the administrator, for whom file permissions do not count.
class WithoutPrivileges {
public:
    WithoutPrivileges() {
        if (m_before == 0 && seteuid(nobody) != 0) std::abort();
    }
    ~WithoutPrivileges() {
        if (m_before == 0 && seteuid(m_before) != 0) std::abort();
    }
    WithoutPrivileges(const WithoutPrivileges&) = delete;
    WithoutPrivileges& operator=(const WithoutPrivileges&) = delete;

private:
    static constexpr uid_t nobody = 65534;
    uid_t m_before = geteuid();
};

}  // namespace quarn::test
