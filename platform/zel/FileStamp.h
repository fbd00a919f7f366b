// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_FILESTAMP_H
#define ZEL_FILESTAMP_H

#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <sys/stat.h>

namespace zel {

/** Identifies one version of a file; costs one stat(). */
class FileStamp
{
public:
    /** Differs from every stamp of a file. */
    FileStamp() = default;
    explicit FileStamp(const char* file) : m_error(::stat(file, &m_status) == 0 ? 0 : errno) {}
    explicit FileStamp(int descriptor) : m_error(::fstat(descriptor, &m_status) == 0 ? 0 : errno) {}

    /** The errno if there is no status; otherwise 0. */
    int error() const { return m_error; }
    mode_t mode() const { return m_status.st_mode; }

    bool operator==(const FileStamp& other) const
    {
        return m_error == other.m_error && m_status.st_dev == other.m_status.st_dev &&
               m_status.st_ino == other.m_status.st_ino && m_status.st_size == other.m_status.st_size &&
               same(m_status.st_mtim, other.m_status.st_mtim) && same(m_status.st_ctim, other.m_status.st_ctim);
    }

    /**
     * Whether the file changed so recently that another change within the same tick of its time stamps would not change
     * the stamp. A tick is some milliseconds, or up to two seconds where the time has no fraction.
     */
    bool isFresh() const
    {
        timespec now = {};
        ::clock_gettime(CLOCK_REALTIME, &now);
        const timespec& changed = m_status.st_ctim;
        const long long age = (now.tv_sec - changed.tv_sec) * nanosecondsPerSecond + (now.tv_nsec - changed.tv_nsec);
        return m_error == 0 && std::llabs(age) < (changed.tv_nsec == 0 ? coarseTick : fineTick);
    }

private:
    static constexpr long long nanosecondsPerSecond = 1000000000;
    static constexpr long long fineTick = 20000000;
    static constexpr long long coarseTick = 2 * nanosecondsPerSecond;

    static bool same(const timespec& a, const timespec& b) { return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec; }

    struct stat m_status = {};
    int m_error = -1;
};

} // namespace zel

#endif
