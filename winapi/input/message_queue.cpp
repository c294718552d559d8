// The message queue: posting, taking and dispatching, from the program's own loop or inside a loop of Qt.
#include "message_queue.h"

#include "application.h"
#include "clock.h"
#include "keyboard.h"
#include "mouse.h"
#include "timer.h"
#include "update_region.h"

#include <QAbstractEventDispatcher>
#include <QCursor>

#include <algorithm>
#include <atomic>
#include <deque>
#include <mutex>

namespace winapi {

namespace {

QPoint pointerPlace()
{
    return QCoreApplication::instance() ? QCursor::pos() : QPoint();
}

struct QueuedMessage
{
    MSG message;
    QString characters; // that the keyboard gives for a key which the user has pressed
};

struct Filter
{
    HWND window = nullptr;
    UINT first = 0;
    UINT last = 0;
    bool remove = true;

    bool passes(const MSG& message) const
    {
        return passesWindow(message.hwnd) &&
               (!(first || last) || (message.message >= first && message.message <= last));
    }

private:
    bool passesWindow(HWND target) const { return !window || target == window || IsChild(window, target); }
};

// What PostMessage has taken, from any thread.
struct Inbox
{
    std::mutex mutex;
    std::vector<MSG> messages;
};

Inbox& inbox()
{
    static auto& posted = *new Inbox;
    return posted;
}

struct Queue
{
    std::deque<QueuedMessage> posted;
    std::deque<Input> input;
    std::optional<int> quit;
    QueuedMessage current{}; // the message taken last
    bool waiting = false;    // a loop of the program has called Qt, and takes the messages itself
    std::atomic<bool> wakePosted = false; // Qt will come back to the queue anyway
};

Queue& queue()
{
    static auto& messages = *new Queue;
    return messages;
}

// Serves the queue while a loop of Qt runs: the application's own, or one of a menu or a dialog.
class Pump : public QObject
{
public:
    // From any thread.
    static void post()
    {
        static Pump& pump = make();
        QCoreApplication::postEvent(&pump, new QEvent(QEvent::User));
    }

protected:
    bool event(QEvent* event) override;

private:
    static Pump& make()
    {
        auto& pump = *new Pump; // outlives every loop
        pump.moveToThread(QCoreApplication::instance()->thread());
        return pump;
    }
};

// Only this thread may ask where the pointer is.
void emptyInbox()
{
    std::vector<MSG> messages;
    {
        const std::lock_guard lock(inbox().mutex);
        messages.swap(inbox().messages);
    }
    for (const MSG& message : messages) {
        const QPoint place = pointerPlace();
        queue().posted.push_back({message, {}});
        queue().posted.back().message.pt = {place.x(), place.y()};
    }
}

std::optional<MSG> toMessage(const Input& input, QString& characters)
{
    if (const auto* const key = std::get_if<KeyInput>(&input)) {
        characters = key->text;
        return toMessage(*key);
    }
    return toMessage(std::get<MouseInput>(input));
}

bool isPostedEmpty()
{
    emptyInbox();
    return queue().posted.empty();
}

std::optional<MSG> takePosted(const Filter& filter)
{
    emptyInbox();
    auto& posted = queue().posted;
    const auto found = std::find_if(posted.begin(), posted.end(), [&](const QueuedMessage& queued) {
        return filter.passes(queued.message);
    });
    if (found == posted.end())
        return std::nullopt;
    QueuedMessage taken = *found;
    if (filter.remove) {
        posted.erase(found);
        queue().current = taken;
    }
    return taken.message;
}

// Turns input into a posted message, now that its turn has come. Input that is for no window is dropped.
bool convertInput()
{
    const EndedWindowsKept kept;
    Queue& q = queue();
    while (!q.input.empty()) {
        const Input input = q.input.front();
        q.input.pop_front();
        QString characters;
        if (const auto message = toMessage(input, characters)) {
            q.posted.push_back({*message, characters});
            return true;
        }
    }
    return false;
}

bool asksForInput(const Filter& filter)
{
    const auto overlaps = [&](UINT first, UINT last) { return filter.first <= last && filter.last >= first; };
    return !(filter.first || filter.last) || overlaps(WM_KEYFIRST, WM_KEYLAST) ||
           overlaps(WM_MOUSEFIRST, WM_MOUSELAST);
}

std::optional<MSG> takePaint(const Filter& filter)
{
    const WindowPtr window = nextToPaint();
    if (!window)
        return std::nullopt;
    const MSG message = makeMessage(window->handle, WM_PAINT, 0, 0);
    return filter.passes(message) ? std::optional(message) : std::nullopt;
}

std::optional<MSG> takeTimer(const Filter& filter)
{
    if ((filter.first || filter.last) && (filter.first > WM_TIMER || filter.last < WM_TIMER))
        return std::nullopt;
    return takeDueTimer(filter.window);
}

std::optional<MSG> takeQuit()
{
    if (!queue().quit)
        return std::nullopt;
    return makeMessage(nullptr, WM_QUIT, static_cast<WPARAM>(*queue().quit), 0);
}

std::optional<MSG> takeWaiting(const Filter& filter)
{
    if (auto message = takePosted(filter))
        return message;
    if (auto message = takeQuit()) {
        if (filter.remove)
            queue().quit.reset();
        return message;
    }
    while (asksForInput(filter) && convertInput()) {
        if (auto message = takePosted(filter))
            return message;
    }
    return std::nullopt;
}

void runQt(QEventLoop::ProcessEventsFlags flags)
{
    application();
    const bool before = std::exchange(queue().waiting, true);
    QCoreApplication::processEvents(flags);
    // Outside of a loop of Qt, processEvents leaves these events waiting. Inside of a handler they have to
    // wait: the widget to be deleted may be the one whose event has led there.
    if (!EndedWindowsKept::any())
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    queue().waiting = before;
}

// In the order of Windows: posted messages, input, painting, timers.
std::optional<MSG> takeNext(const Filter& filter)
{
    if (auto message = takeWaiting(filter))
        return message;
    runQt(QEventLoop::AllEvents);
    if (auto message = takeWaiting(filter))
        return message;
    if (auto message = takePaint(filter))
        return message;
    return takeTimer(filter);
}

std::optional<MSG> takeNextInsideQt()
{
    const Filter all;
    if (isPostedEmpty() && queue().quit)
        return std::nullopt;
    if (auto message = takeWaiting(all))
        return message;
    if (auto message = takePaint(all))
        return message;
    return takeTimer(all);
}

// Serves some messages, then lets the loop of Qt do its other work.
void serveQueue()
{
    constexpr int kBatch = 64;
    for (int served = 0; served < kBatch; ++served) {
        auto message = takeNextInsideQt();
        if (!message) {
            // A loop of the program may have started this loop of Qt, and has to end as well: the quit stays.
            if (queue().quit)
                QCoreApplication::exit(*queue().quit);
            return;
        }
        if (CallMsgFilterA(&*message, MSGF_USER))
            continue;
        TranslateMessage(&*message);
        DispatchMessageA(&*message);
    }
    wakeQueue();
}

bool Pump::event(QEvent* event)
{
    if (event->type() != QEvent::User)
        return QObject::event(event);
    queue().wakePosted = false;
    if (!queue().waiting)
        serveQueue();
    return true;
}

}

void wakeQueue()
{
    if (QCoreApplication::instance() && !queue().wakePosted.exchange(true))
        Pump::post();
}

void postInput(Input input)
{
    auto& waiting = queue().input;
    const auto isMove = [](const Input& one) {
        const auto* const mouse = std::get_if<MouseInput>(&one);
        return mouse && mouse->message == WM_MOUSEMOVE;
    };
    if (!waiting.empty() && isMove(waiting.back()) && isMove(input))
        waiting.pop_back();
    waiting.push_back(std::move(input));
    wakeQueue();
}

MSG makeMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const QPoint place = pointerPlace();
    return {window, message, wParam, lParam, tickCount(), {place.x(), place.y()}};
}

void discardMessagesOf(const Window& window)
{
    emptyInbox();
    std::erase_if(queue().posted,
                  [&](const QueuedMessage& queued) { return queued.message.hwnd == window.handle; });
}

}

using namespace winapi;

BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (window && !existsForAnyThread(window)) {
        SetLastError(ERROR_INVALID_WINDOW_HANDLE);
        return FALSE;
    }
    {
        const std::lock_guard lock(inbox().mutex);
        inbox().messages.push_back({window, message, wParam, lParam, tickCount(), {}});
    }
    wakeQueue();
    return TRUE;
}

void PostQuitMessage(int exitCode)
{
    queue().quit = exitCode;
    wakeQueue();
}

BOOL PeekMessageA(MSG* message, HWND window, UINT first, UINT last, UINT remove)
{
    const auto next = takeNext({window, first, last, (remove & PM_REMOVE) != 0});
    if (!next || !message)
        return FALSE;
    *message = *next;
    return TRUE;
}

BOOL GetMessageA(MSG* message, HWND window, UINT first, UINT last)
{
    if (!message || (window && !findWindow(window)))
        return -1;
    while (!PeekMessageA(message, window, first, last, PM_REMOVE))
        runQt(QEventLoop::WaitForMoreEvents);
    return message->message != WM_QUIT;
}

BOOL TranslateMessage(const MSG* message)
{
    if (!message || message->message < WM_KEYFIRST || message->message > WM_KEYLAST)
        return FALSE;
    const bool system = message->message == WM_SYSKEYDOWN;
    if (!system && message->message != WM_KEYDOWN)
        return TRUE;
    const QueuedMessage& current = queue().current;
    const bool pressed = current.message.hwnd == message->hwnd && current.message.time == message->time &&
                         current.message.wParam == message->wParam && !current.characters.isEmpty();
    const int key = static_cast<int>(message->wParam);
    // Qt gives Delete a character; Windows does not.
    const QString characters = pressed && key != VK_DELETE ? current.characters : charactersOf(key);
    for (const char c : characters.toUtf8())
        PostMessageA(message->hwnd, system ? WM_SYSCHAR : WM_CHAR, static_cast<BYTE>(c), message->lParam);
    return TRUE;
}

LRESULT DispatchMessageA(const MSG* message)
{
    if (!message)
        return 0;
    if (message->message == WM_TIMER && message->lParam) {
        reinterpret_cast<TIMERPROC>(message->lParam)(message->hwnd, WM_TIMER, message->wParam, tickCount());
        return 0;
    }
    if (!message->hwnd)
        return 0;
    return SendMessageA(message->hwnd, message->message, message->wParam, message->lParam);
}

LRESULT SendMessageA(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    const EndedWindowsKept kept;
    const WindowPtr window = findWindow(handle);
    return window ? callProcedure(*window, message, wParam, lParam) : 0;
}

LRESULT CallWindowProcA(WNDPROC proc, HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return proc ? proc(window, message, wParam, lParam) : 0;
}

DWORD GetMessagePos()
{
    const POINT place = queue().current.message.pt;
    return static_cast<DWORD>(MAKELONG(place.x, place.y));
}

LONG GetMessageTime()
{
    return static_cast<LONG>(queue().current.message.time);
}
