// Mutexes. A named one is a lock on a file in a folder of the user's own, which the kernel frees when its
// holder dies. The file is there while the mutex is held; one that a dead holder left tells the next holder
// of that death.
#include "mutexes.h"

#include "descriptor.h"
#include "errors.h"
#include "folders.h"
#include "kernel_object.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

using namespace winapi;

namespace {

using Clock = std::chrono::steady_clock;
using Deadline = std::optional<Clock::time_point>; // none: wait for ever

constexpr auto kPollInterval = std::chrono::milliseconds(5);

Deadline deadlineIn(DWORD milliseconds)
{
    if (milliseconds == INFINITE)
        return std::nullopt;
    return Clock::now() + std::chrono::milliseconds(milliseconds);
}

std::string mutexHome; // empty: the user's

// The folder of the lock files below the user's home. It goes with its last file.
constexpr const char* kFolder = "/.zeb17-locks";

std::string folderPath()
{
    const std::string home = mutexHome.empty() ? homeOfUser() : mutexHome;
    return home.starts_with('/') ? home + kFolder : std::string();
}

// What stands at a place of ours and is not ours must not be locked, written or removed.
bool failOnForeign()
{
    return fail(ERROR_FILE_INVALID);
}

// Whether only this user can put files there.
bool isOwnFolder(int folder)
{
    struct stat status;
    return ::fstat(folder, &status) == 0 && status.st_uid == ::geteuid() &&
           !(status.st_mode & (S_IWGRP | S_IWOTH));
}

// Whether it is a file as this code makes them: the user's alone, under one name, with the mark at most.
bool isOwnLockFile(const struct stat& status)
{
    return S_ISREG(status.st_mode) && status.st_uid == ::geteuid() && !(status.st_mode & 0077) &&
           status.st_nlink <= 1 && status.st_size <= 1;
}

// The lock that excludes other processes.
class LockFile
{
public:
    // `name`: of the file, without a folder.
    explicit LockFile(std::string name) : m_name(std::move(name)) {}

    DWORD acquire(const Deadline& deadline)
    {
        DWORD result;
        while ((result = tryAcquire()) == WAIT_TIMEOUT && (!deadline || Clock::now() < *deadline))
            std::this_thread::sleep_for(kPollInterval);
        if (result == WAIT_TIMEOUT || result == WAIT_FAILED)
            close();
        return result;
    }

    // The file is removed before it is unlocked: who waits for the lock of a file without a name opens the
    // file anew. That of an abandoned mutex stays.
    void release(bool abandoned)
    {
        if (!abandoned && isInPlace()) {
            ::unlinkat(m_folder.get(), m_name.c_str(), 0);
            ::rmdir(m_folderPath.c_str()); // fails while there are other files in it
        }
        close();
    }

private:
    // WAIT_TIMEOUT: somebody else holds the lock.
    DWORD tryAcquire()
    {
        do {
            if (!m_file.isOpen() && !open())
                return WAIT_FAILED;
            if (::flock(m_file.get(), LOCK_EX | LOCK_NB) != 0) {
                if (errno == EWOULDBLOCK || errno == EINTR)
                    return WAIT_TIMEOUT;
                return failWithErrno(WAIT_FAILED);
            }
            if (!isInPlace())
                close();
        } while (!m_file.isOpen());

        struct stat status;
        const bool abandoned = ::fstat(m_file.get(), &status) == 0 && status.st_size > 0;
        // A mark that cannot be made costs the news of a holder's death, and nothing else.
        static_cast<void>(::ftruncate(m_file.get(), 1) == 0);
        return abandoned ? WAIT_ABANDONED : WAIT_OBJECT_0;
    }

    // A holder may remove the folder between the two steps, so they are tried again; but not for ever.
    bool open()
    {
        constexpr int kTries = 100;
        for (int i = 0; i < kTries; ++i) {
            if (!openFolder())
                return false;
            m_file =
                Descriptor(::openat(m_folder.get(), m_name.c_str(),
                                    O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY, 0600));
            if (m_file.isOpen() || errno != ENOENT)
                break;
        }
        struct stat status;
        if (m_file.isOpen())
            return (::fstat(m_file.get(), &status) == 0 && isOwnLockFile(status)) || failOnForeign();
        const int error = errno;
        if (::fstatat(m_folder.get(), m_name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0)
            return failOnForeign();
        return fail(errorFromErrno(error));
    }

    bool openFolder()
    {
        constexpr int kTries = 100;
        m_folderPath = folderPath();
        if (m_folderPath.empty())
            return fail(ERROR_PATH_NOT_FOUND), false;
        for (int i = 0; i < kTries; ++i) {
            if (::mkdir(m_folderPath.c_str(), 0700) != 0 && errno != EEXIST)
                return failWithErrno(), false;
            m_folder =
                Descriptor(::open(m_folderPath.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
            if (m_folder.isOpen() || errno != ENOENT)
                break;
        }
        return (m_folder.isOpen() && isOwnFolder(m_folder.get())) || failOnForeign();
    }

    // Whether the file is still the one that others find under the name.
    bool isInPlace() const
    {
        struct stat own;
        struct stat found;
        return ::fstat(m_file.get(), &own) == 0 &&
               ::fstatat(m_folder.get(), m_name.c_str(), &found, AT_SYMLINK_NOFOLLOW) == 0 &&
               own.st_dev == found.st_dev && own.st_ino == found.st_ino;
    }

    void close()
    {
        m_file = Descriptor();
        m_folder = Descriptor();
    }

    std::string m_name;
    std::string m_folderPath;
    Descriptor m_folder;
    Descriptor m_file;
};

// What all handles of one mutex in this process share.
class MutexState
{
public:
    explicit MutexState(std::optional<LockFile> file) : m_file(std::move(file)) {}

    DWORD acquire(DWORD milliseconds)
    {
        const Deadline deadline = deadlineIn(milliseconds);
        if (const DWORD result = acquireInProcess(deadline); result != WAIT_OBJECT_0 || m_depth > 1)
            return result;
        const DWORD result =
            m_file ? acquireFile(deadline) : std::exchange(m_abandoned, DWORD(WAIT_OBJECT_0));
        if (result == WAIT_TIMEOUT || result == WAIT_FAILED)
            releaseInProcess();
        return result;
    }

    // False if the calling thread does not hold the mutex.
    bool release()
    {
        if (!isHeldHere())
            return false;
        if (m_depth > 1) {
            --m_depth;
            return true;
        }
        if (m_file)
            m_file->release(false);
        releaseInProcess();
        return true;
    }

    // The thread that held the mutex has ended.
    void abandon()
    {
        m_abandoned = WAIT_ABANDONED;
        if (m_file)
            m_file->release(true);
        releaseInProcess();
    }

    bool isHeldHere()
    {
        const std::lock_guard guard(m_guard);
        return m_depth > 0 && m_owner == std::this_thread::get_id();
    }

private:
    DWORD acquireInProcess(const Deadline& deadline)
    {
        std::unique_lock guard(m_guard);
        const auto self = std::this_thread::get_id();
        const auto free = [&] { return m_depth == 0 || m_owner == self; };
        if (!deadline)
            m_released.wait(guard, free);
        else if (!m_released.wait_until(guard, *deadline, free))
            return WAIT_TIMEOUT;
        m_owner = self;
        ++m_depth;
        return WAIT_OBJECT_0;
    }

    DWORD acquireFile(const Deadline& deadline)
    {
        try {
            return m_file->acquire(deadline);
        } catch (const std::bad_alloc&) {
            return fail(ERROR_NOT_ENOUGH_MEMORY, WAIT_FAILED);
        }
    }

    void releaseInProcess()
    {
        {
            const std::lock_guard guard(m_guard);
            m_depth = 0;
        }
        m_released.notify_one();
    }

    std::mutex m_guard; // of owner and depth
    std::condition_variable m_released;
    std::thread::id m_owner;
    int m_depth = 0;
    DWORD m_abandoned = WAIT_OBJECT_0; // what the next holder of an unnamed mutex is told
    std::optional<LockFile> m_file;    // of a named mutex
};

// The mutexes that the thread holds; those left over when it ends are abandoned.
class HeldByThread
{
public:
    ~HeldByThread()
    {
        for (const auto& mutex : m_held)
            mutex->abandon();
    }

    // Makes room for one more, so that `add` cannot fail.
    void reserve() { m_held.reserve(m_held.size() + 1); }

    void add(const std::shared_ptr<MutexState>& mutex)
    {
        if (std::find(m_held.begin(), m_held.end(), mutex) == m_held.end())
            m_held.push_back(mutex);
    }

    void remove(const std::shared_ptr<MutexState>& mutex) { std::erase(m_held, mutex); }

private:
    std::vector<std::shared_ptr<MutexState>> m_held;
};

thread_local HeldByThread heldByThread;

class MutexObject final : public KernelObject
{
public:
    explicit MutexObject(std::shared_ptr<MutexState> state) : m_state(std::move(state)) {}

    DWORD wait(DWORD milliseconds) override
    {
        heldByThread.reserve();
        const DWORD result = m_state->acquire(milliseconds);
        if (result == WAIT_OBJECT_0 || result == WAIT_ABANDONED)
            heldByThread.add(m_state);
        return result;
    }

    BOOL release()
    {
        if (!m_state->release())
            return fail(ERROR_NOT_OWNER);
        if (!m_state->isHeldHere())
            heldByThread.remove(m_state);
        return TRUE;
    }

private:
    std::shared_ptr<MutexState> m_state;
};

// A file name for any name of a mutex, and for no two the same.
std::string encodeName(std::string_view name)
{
    constexpr char kDigits[] = "0123456789abcdef";
    std::string result = "mutex.";
    for (const char ch : name) {
        const auto byte = static_cast<unsigned char>(ch);
        if (std::isalnum(byte) || ch == '-' || ch == '_')
            result += ch;
        else
            (result += '%').append({kDigits[byte >> 4], kDigits[byte & 15]});
    }
    return result;
}

// The named mutexes that are open in this process.
class Registry
{
public:
    std::shared_ptr<MutexState> open(std::string_view name, bool& isNew)
    {
        const std::lock_guard guard(m_guard);
        auto& entry = m_mutexes[std::string(name)];
        auto mutex = entry.lock();
        isNew = !mutex;
        if (mutex)
            return mutex;
        mutex = std::make_shared<MutexState>(LockFile(encodeName(name)));
        entry = mutex;
        return mutex;
    }

private:
    std::mutex m_guard;
    std::map<std::string, std::weak_ptr<MutexState>> m_mutexes;
};

Registry& registry()
{
    static auto& instance = *new Registry;
    return instance;
}

// The name without "Local\\", which is the default. A backslash elsewhere would be a directory, and there is
// none.
std::optional<std::string_view> sessionName(std::string_view name)
{
    constexpr std::string_view kSession = "Local\\";
    constexpr std::string_view kAllSessions = "Global\\";
    if (name.size() > MAX_PATH)
        return fail(ERROR_FILENAME_EXCED_RANGE, std::nullopt);
    if (name.starts_with(kSession))
        name.remove_prefix(kSession.size());
    const std::size_t start = name.starts_with(kAllSessions) ? kAllSessions.size() : 0;
    if (name.find('\\', start) != std::string_view::npos)
        return fail(ERROR_PATH_NOT_FOUND, std::nullopt);
    return name;
}

std::shared_ptr<MutexState> openMutex(LPCSTR name, bool& isNew)
{
    isNew = true;
    if (!name || !*name)
        return std::make_shared<MutexState>(std::nullopt);
    const auto plainName = sessionName(name);
    return plainName ? registry().open(*plainName, isNew) : nullptr;
}

}

void winapi::setMutexHome(const std::string& directory)
{
    mutexHome = directory;
}

HANDLE CreateMutexA(LPSECURITY_ATTRIBUTES, BOOL initialOwner, LPCSTR name)
{
    bool isNew = false;
    auto state = openMutex(name, isNew);
    if (!state)
        return nullptr;
    auto object = std::make_unique<MutexObject>(std::move(state));
    if (initialOwner && isNew)
        object->wait(0);
    SetLastError(isNew ? ERROR_SUCCESS : ERROR_ALREADY_EXISTS);
    return static_cast<KernelObject*>(object.release());
}

BOOL ReleaseMutex(HANDLE mutex)
{
    auto* object = objectFromHandle<MutexObject>(mutex);
    return object ? object->release() : FALSE;
}
