// Windows in a Qt application: its own loop, its layouts, its events.
#include "MessageRecorder.h"

#include <zeb17_qt.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QWidget>

#include <functional>

namespace {

void runQt()
{
    for (int i = 0; i < 20; ++i)
        QCoreApplication::processEvents(QEventLoop::AllEvents);
}

void sendKey(QWidget* widget, int key, const QString& text = {})
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(widget, &event);
    serveMessages();
}

// Called with each message of a window of `createListener`.
std::function<void(UINT)> onMessage;

LRESULT CALLBACK listen(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (onMessage)
        onMessage(message);
    return DefWindowProcA(window, message, wParam, lParam);
}

HWND createListener()
{
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = listen;
    windowClass.lpszClassName = "listener";
    RegisterClassA(&windowClass);
    return CreateWindowExA(0, "listener", "", WS_POPUP | WS_VISIBLE, 20, 20, 200, 150, nullptr, nullptr,
                           nullptr, nullptr);
}

// Serves all that waits, with what is deleted later.
void runLoop(const std::function<void()>& inside)
{
    QEventLoop loop;
    QTimer::singleShot(0, &loop, inside);
    QTimer::singleShot(20, &loop, &QEventLoop::quit);
    loop.exec();
}

std::vector<UINT> offered;
UINT swallowed;

LRESULT CALLBACK filter(int code, WPARAM, LPARAM lParam)
{
    const auto& message = *reinterpret_cast<const MSG*>(lParam);
    if (code == MSGF_USER)
        offered.push_back(message.message);
    return message.message == swallowed;
}

class QtHost : public testing::Test
{
protected:
    MessageRecorder recorder;
};

TEST_F(QtHost, AQtLoopServesMessagesPaintsAndTimers)
{
    const HWND top = recorder.createTop("t");
    recorder.only({"USER", "PAINT", "TIMER"});
    const HHOOK hook = SetWindowsHookExA(WH_MSGFILTER, filter, nullptr, GetCurrentThreadId());
    offered.clear();
    swallowed = WM_USER + 1;
    PostMessageA(top, WM_USER, 1, 0);
    PostMessageA(top, WM_USER + 1, 2, 0);
    InvalidateRect(top, nullptr, FALSE);
    SetTimer(top, 3, 10, nullptr);
    QTimer::singleShot(100, qApp, [top] {
        KillTimer(top, 3);
        PostQuitMessage(7);
    });
    EXPECT_EQ(QApplication::exec(), 7);
    EXPECT_EQ(recorder.take().substr(0, 28), "t.USER(1) t.PAINT t.TIMER(3)");
    ASSERT_GE(offered.size(), 2u);
    EXPECT_EQ(offered[0], UINT(WM_USER));
    EXPECT_EQ(offered[1], UINT(WM_USER + 1));
    UnhookWindowsHookEx(hook);
    MSG message;
    PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE); // the quit that a loop of ours would have seen
}

TEST_F(QtHost, ALayoutShowsAndSizesTheWindowAndNoChildHasAWidget)
{
    QWidget around;
    auto* const layout = new QVBoxLayout(&around);
    layout->setContentsMargins(0, 0, 0, 0);
    const HWND top = recorder.create("t", WS_POPUP);
    EXPECT_EQ(QWidgetFromWindow(recorder.create("c", WS_CHILD, top, 5)), nullptr);
    layout->addWidget(QWidgetFromWindow(top));
    EXPECT_FALSE(QWidgetFromWindow(top)->isVisible());
    recorder.only({"SIZE", "SHOWWINDOW", "PAINT"});
    around.resize(420, 330);
    around.show();
    runQt();
    EXPECT_TRUE(IsWindowVisible(top));
    EXPECT_EQ(recorder.take(), "t.SIZE(420x330) t.SHOWWINDOW(1) t.PAINT");
}

TEST_F(QtHost, WidgetAndWindowGoTogether)
{
    auto* around = new QWidget;
    auto* const layout = new QVBoxLayout(around);
    const HWND first = recorder.create("f", WS_POPUP);
    const HWND second = recorder.create("s", WS_POPUP);
    layout->addWidget(QWidgetFromWindow(first));
    layout->addWidget(QWidgetFromWindow(second));
    around->show();
    runQt();
    DestroyWindow(first);
    runQt();
    EXPECT_EQ(layout->count(), 1);
    EXPECT_TRUE(IsWindow(second));
    delete around;
    EXPECT_FALSE(IsWindow(second));
}

// A loop inside a handler destroys the window, and deletes what is to be deleted later.
TEST_F(QtHost, AWidgetOutlivesTheEventInWhichItsWindowEnds)
{
    for (const UINT moment : {WM_SIZE, WM_MOVE, WM_SETFOCUS, WM_SHOWWINDOW}) {
        const HWND top = createListener();
        const QPointer<QWidget> widget = QWidgetFromWindow(top);
        runQt();
        SetFocus(nullptr);
        widget->clearFocus();
        bool ended = false;
        onMessage = [&](UINT message) {
            if (message != moment || ended)
                return;
            ended = true;
            runLoop([top] { DestroyWindow(top); });
            EXPECT_FALSE(IsWindow(top));
            EXPECT_TRUE(widget) << "its event is running";
        };
        const std::function<void()> causes[] = {[&] { widget->resize(250, 170); },
                                                [&] { widget->move(30, 40); }, [&] { widget->setFocus(); },
                                                [&] { widget->hide(); }};
        runLoop([&] {
            for (const auto& cause : causes)
                if (!ended)
                    cause();
        });
        runLoop([] {});
        EXPECT_TRUE(ended) << moment;
        EXPECT_FALSE(widget);
        onMessage = nullptr;
    }
}

TEST_F(QtHost, SmallWheelStepsMakeOneNotch)
{
    QWidget* const widget = QWidgetFromWindow(recorder.createTop("t"));
    recorder.only({"WHEEL"});
    const QPointF inside(30, 30);
    for (int i = 0; i < 8; ++i) {
        QWheelEvent step(inside, widget->mapToGlobal(inside), {}, {0, 20}, Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(widget, &step);
    }
    EXPECT_EQ(recorder.served(), "t.WHEEL");
}

// A touchpad tells its way down and to the side in events of their own.
TEST_F(QtHost, WheelStepsAddUpUntilTheyTurnOrEnd)
{
    QWidget* const widget = QWidgetFromWindow(recorder.createTop("t"));
    recorder.only({"WHEEL"});
    const auto roll = [&](QPoint angle, Qt::ScrollPhase phase = Qt::ScrollUpdate) {
        const QPointF inside(30, 30);
        QWheelEvent step(inside, widget->mapToGlobal(inside), {}, angle, Qt::NoButton, Qt::NoModifier, phase,
                         false);
        QCoreApplication::sendEvent(widget, &step);
        return recorder.served();
    };
    roll({0, -80}, Qt::ScrollBegin);
    roll({7, 0});
    EXPECT_EQ(roll({0, -40}), "t.WHEEL") << "a step to the side loses nothing";
    roll({0, -80});
    roll({0, 60});
    EXPECT_EQ(roll({0, 50}), "") << "a turn begins anew";
    EXPECT_EQ(roll({0, 10}), "t.WHEEL");
    roll({0, 80});
    roll({0, 0}, Qt::ScrollEnd);
    EXPECT_EQ(roll({0, 80}), "") << "so does another gesture";
}

TEST_F(QtHost, AModifierLetGoElsewhereIsNoticed)
{
    QWidget* const widget = QWidgetFromWindow(recorder.createTop("t"));
    sendKey(widget, Qt::Key_Shift);
    EXPECT_TRUE(GetKeyState(VK_SHIFT) & 0x8000);
    sendKey(widget, Qt::Key_A, "a");
    EXPECT_FALSE(GetKeyState(VK_SHIFT) & 0x8000);
}

// On a layout that is not Latin a key is known by its place. Text that belongs to no key comes alone.
TEST_F(QtHost, KeysOfEveryLayoutAreHeard)
{
    QWidget* const widget = QWidgetFromWindow(recorder.createTop("t"));
    const struct
    {
        int key;
        quint32 scanCode; // as X11 counts them
        const char* text;
        const char* heard;
    } cases[] = {
        {0x415, 28, "\u0435", "t.KEYDOWN(84) t.CHAR(208) t.CHAR(181)"}, // Russian, at the place of T
        {0x3A4, 28, "\u03C4", "t.KEYDOWN(84) t.CHAR(207) t.CHAR(132)"}, // Greek
        {Qt::Key_Exclam, 10, "!", "t.KEYDOWN(49) t.CHAR(33)"},          // Shift and 1
        {Qt::Key_T, 45, "t", "t.KEYDOWN(84) t.CHAR(116)"},              // Latin, by its letter
        {Qt::Key_Odiaeresis, 47, "\u00F6",
         "t.KEYDOWN(231) t.CHAR(195) t.CHAR(182)"}, // German, no key of Windows
        {Qt::Key_Dead_Acute, 48, "", ""},
    };
    recorder.only({"KEYDOWN", "CHAR"});
    for (const auto& [key, scanCode, text, heard] : cases) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, scanCode, 0, 0, QString::fromUtf8(text));
        QCoreApplication::sendEvent(widget, &event);
        EXPECT_EQ(recorder.served(), heard);
    }
}

TEST_F(QtHost, AMenuTakesNoFocusAway)
{
    const HWND top = recorder.createTop("t");
    QWidget* const widget = QWidgetFromWindow(top);
    recorder.only({"KILLFOCUS", "ACTIVATE", "SETFOCUS"});
    QFocusEvent out(QEvent::FocusOut, Qt::PopupFocusReason);
    QFocusEvent in(QEvent::FocusIn, Qt::PopupFocusReason);
    QCoreApplication::sendEvent(widget, &out);
    QCoreApplication::sendEvent(widget, &in);
    EXPECT_EQ(recorder.take(), "");
    EXPECT_EQ(GetFocus(), top);
}
}
