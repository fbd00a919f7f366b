#ifndef ZEL_FILESTAMP_H
#define ZEL_FILESTAMP_H

#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <sys/stat.h>

namespace zel {

/** By which a file is known to be the same with the same contents, at the price of one look at its status. */
class FileStamp
{
public:
    /** Differs from every stamp of a file. */
    FileStamp() = default;
    explicit FileStamp(const char* file) : m_error(::stat(file, &m_status) == 0 ? 0 : errno) {}

    /** Why there is no status, as an errno; 0 where there is one. */
    int error() const { return m_error; }
    bool isMissing() const { return m_error == ENOENT; }
    mode_t mode() const { return m_status.st_mode; }

    bool operator==(const FileStamp& other) const
    {
        return m_error == other.m_error && m_status.st_dev == other.m_status.st_dev &&
               m_status.st_ino == other.m_status.st_ino && m_status.st_size == other.m_status.st_size &&
               same(m_status.st_mtim, other.m_status.st_mtim) && same(m_status.st_ctim, other.m_status.st_ctim);
    }

    /**
     * File systems tell the time in ticks of some milliseconds. A file that changed just now can change again within
     * the same tick, and its stamp does not.
     */
    bool isFresh() const
    {
        timespec now = {};
        ::clock_gettime(CLOCK_REALTIME, &now);
        const long long age =
            (now.tv_sec - m_status.st_ctim.tv_sec) * nanosecondsPerSecond + (now.tv_nsec - m_status.st_ctim.tv_nsec);
        return m_error == 0 && std::llabs(age) < longestTick;
    }

private:
    static constexpr long long nanosecondsPerSecond = 1000000000;
    static constexpr long long longestTick = 20000000;

    static bool same(const timespec& a, const timespec& b) { return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec; }

    struct stat m_status = {};
    int m_error = -1;
};

} // namespace zel

#endif
