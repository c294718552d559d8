// Mutexes. A named one is a lock on a file in the user's runtime directory, which the kernel frees when its
// holder dies; the file is empty while nobody holds it, so that the next holder learns of such a death.
#include "descriptor.h"
#include "errors.h"
#include "kernel_object.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <map>
#include <memory>
#include <mutex>
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

// The lock that keeps other processes out.
class LockFile
{
public:
    explicit LockFile(Descriptor file) : m_file(std::move(file)) {}

    DWORD acquire(const Deadline& deadline)
    {
        const int operation = deadline ? LOCK_EX | LOCK_NB : LOCK_EX;
        while (::flock(m_file.get(), operation) != 0) {
            if (errno != EINTR && errno != EWOULDBLOCK)
                return failWithErrno(WAIT_FAILED);
            if (deadline && Clock::now() >= *deadline)
                return WAIT_TIMEOUT;
            if (deadline)
                std::this_thread::sleep_for(kPollInterval);
        }
        struct stat status;
        const bool abandoned = ::fstat(m_file.get(), &status) == 0 && status.st_size > 0;
        mark(true);
        return abandoned ? WAIT_ABANDONED : WAIT_OBJECT_0;
    }

    void release(bool abandoned)
    {
        if (!abandoned)
            mark(false);
        ::flock(m_file.get(), LOCK_UN);
    }

private:
    // If the mark cannot be made, the next holder is not told of this one's death; all else works.
    void mark(bool held) { static_cast<void>(::ftruncate(m_file.get(), held ? 1 : 0) == 0); }

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
        const DWORD result = m_file ? m_file->acquire(deadline) : std::exchange(m_abandoned, WAIT_OBJECT_0);
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

// A directory of this user alone, or an empty name.
std::string runtimeDirectory()
{
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    if (runtime && *runtime)
        return runtime;

    const std::string path = "/tmp/winapi-mutexes-" + std::to_string(::getuid());
    ::mkdir(path.c_str(), 0700);
    struct stat status;
    const bool own =
        ::lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == ::getuid();
    return own ? path : std::string();
}

// Turns the name of a mutex into a file name; no two names share one.
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

std::optional<LockFile> openLockFile(std::string_view name)
{
    const std::string directory = runtimeDirectory();
    if (directory.empty())
        return fail(ERROR_ACCESS_DENIED, std::nullopt);
    Descriptor file(::open((directory + '/' + encodeName(name)).c_str(),
                           O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
    if (!file.isOpen())
        return failWithErrno(std::nullopt);
    return LockFile(std::move(file));
}

// The named mutexes that are open in this process.
class Registry
{
public:
    // Null, and the last error set, if the name is refused.
    std::shared_ptr<MutexState> open(std::string_view name, bool& isNew)
    {
        const std::lock_guard guard(m_guard);
        auto& entry = m_mutexes[std::string(name)];
        auto mutex = entry.lock();
        isNew = !mutex;
        if (mutex)
            return mutex;
        auto file = openLockFile(name);
        if (!file)
            return nullptr;
        mutex = std::make_shared<MutexState>(std::move(file));
        entry = mutex;
        return mutex;
    }

private:
    std::mutex m_guard;
    std::map<std::string, std::weak_ptr<MutexState>> m_mutexes;
};

Registry& registry()
{
    static Registry instance;
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
