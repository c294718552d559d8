// The named mutex between threads and processes.
#include <MTAutoLock.h>

#include <LockHome.h>
#include <TemporaryDirectory.h>

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <future>
#include <thread>
#include <vector>

namespace {

class Mutex : public testing::Test
{
protected:
    static std::string NameOf(const char* name)
    {
        return "zeb17-test-" + std::to_string(GetCurrentProcessId()) + "-" + name;
    }

    // What another thread gets that asks and does not wait; it gives back what it got.
    static DWORD TryElsewhere(const std::string& name)
    {
        return std::async(std::launch::async,
                          [&name] {
                              HANDLE mutex = CreateMutexA(nullptr, FALSE, name.c_str());
                              const DWORD result = WaitForSingleObject(mutex, 0);
                              if (result != WAIT_TIMEOUT)
                                  ReleaseMutex(mutex);
                              CloseHandle(mutex);
                              return result;
                          })
            .get();
    }
};

TEST_F(Mutex, IsHeldForTheScopeAsOftenAsItWasTaken)
{
    const std::string name = NameOf("scope");
    MTMutex mutex(false, name.c_str(), nullptr);
    MTMutex same(false, name.c_str(), nullptr);
    ASSERT_TRUE(mutex.IsValid());
    {
        const MTAutoLock lock(&mutex);
        EXPECT_EQ(TryElsewhere(name), static_cast<DWORD>(WAIT_TIMEOUT));
        {
            const MTAutoLock again(&same);
            const MTAutoLock none(nullptr);
        }
        EXPECT_EQ(TryElsewhere(name), static_cast<DWORD>(WAIT_TIMEOUT));
    }
    EXPECT_EQ(TryElsewhere(name), static_cast<DWORD>(WAIT_OBJECT_0));
    EXPECT_EQ(TryElsewhere(NameOf("other")), static_cast<DWORD>(WAIT_OBJECT_0));
}

TEST_F(Mutex, CanBeginHeldAndIsGivenBackByItsHolderOnly)
{
    const std::string name = NameOf("held");
    MTMutex mutex(true, name.c_str(), nullptr);
    EXPECT_EQ(TryElsewhere(name), static_cast<DWORD>(WAIT_TIMEOUT));
    std::thread([&mutex] { mutex.Unlock(); }).join();
    EXPECT_EQ(TryElsewhere(name), static_cast<DWORD>(WAIT_TIMEOUT));
    mutex.Unlock();
    EXPECT_EQ(TryElsewhere(name), static_cast<DWORD>(WAIT_OBJECT_0));
}

TEST_F(Mutex, ExcludesThreads)
{
    const std::string name = NameOf("count");
    int count = 0; // not atomic: the mutex must do
    std::atomic<bool> overlap = false;
    std::atomic<int> inside = 0;
    std::vector<std::thread> threads;
    constexpr int kThreads = 4;
    threads.reserve(kThreads);
    for (int i = 0; i < kThreads; ++i)
        threads.emplace_back([&] {
            MTMutex mutex(false, name.c_str(), nullptr);
            for (int j = 0; j < 500; ++j) {
                const MTAutoLock lock(&mutex);
                overlap = overlap || ++inside != 1;
                ++count;
                --inside;
            }
        });
    for (auto& thread : threads)
        thread.join();
    EXPECT_EQ(count, 2000);
    EXPECT_FALSE(overlap);
}

TEST_F(Mutex, IsFreedByTheDeathOfItsHolder)
{
    const std::string name = NameOf("death");
    HANDLE mutex = CreateMutexA(nullptr, FALSE, name.c_str());
    std::thread([mutex] { WaitForSingleObject(mutex, INFINITE); }).join();
    EXPECT_EQ(WaitForSingleObject(mutex, 1000), static_cast<DWORD>(WAIT_ABANDONED));
    ReleaseMutex(mutex);

    const TemporaryDirectory directory;
    const std::string taken = directory.PathOf("taken");
    const std::string die = directory.PathOf("die");
    const auto worker = std::filesystem::path(MUTEX_WORKER).make_preferred().string();
    std::string command = '"' + worker + '"';
    for (const std::string& argument : {name, taken, die, LockHome::Get()})
        command += " \"" + argument + '"';
#ifdef _WIN32
    command = '"' + command + '"'; // the shell takes the outer pair off
#endif
    auto run = std::async(std::launch::async, [&command] { return std::system(command.c_str()); });
    for (int i = 0; i < 2000 && !std::filesystem::exists(taken); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    ASSERT_TRUE(std::filesystem::exists(taken));
    EXPECT_EQ(WaitForSingleObject(mutex, 30), static_cast<DWORD>(WAIT_TIMEOUT)) << "held by a process";
    directory.Write("die", "");
    EXPECT_EQ(run.get(), 0);
    EXPECT_EQ(WaitForSingleObject(mutex, 5000), static_cast<DWORD>(WAIT_ABANDONED));
    ReleaseMutex(mutex);
    EXPECT_EQ(WaitForSingleObject(mutex, 5000), static_cast<DWORD>(WAIT_OBJECT_0)) << "told once";
    ReleaseMutex(mutex);
    CloseHandle(mutex);
}

TEST_F(Mutex, OfARefusedNameIsNone)
{
    MTMutex mutex(false, "No\\Such\\Room", nullptr);
    EXPECT_FALSE(mutex.IsValid());
    EXPECT_EQ(mutex.Lock(), static_cast<DWORD>(ERROR_PATH_NOT_FOUND));
    const MTAutoLock lock(&mutex);
    EXPECT_EQ(lock.GetError(), static_cast<DWORD>(ERROR_PATH_NOT_FOUND));
    mutex.Unlock();
}

}
