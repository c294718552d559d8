// The widget that stands for a top-level window: it shows the window's pixels and passes input on to it.
#pragma once

#include "window.h"

#include <QWidget>

namespace winapi {

class HostWidget : public QWidget
{
public:
    explicit HostWidget(Window& window);
    ~HostWidget() override;

    WindowPtr served() const { return findWindow(m_handle); }
    bool isEmbedded() const { return !isWindow(); }
    QPoint screenOrigin() const;

    // Takes size, place, visibility, state and title from the window.
    void follow(bool mayActivate);
    void takeActivation();
    // Hands the keyboard to the next, or previous, widget of the application that this widget stands in.
    bool passFocus(bool next) { return QWidget::focusNextPrevChild(next); }
    // To be called when the window is gone: hides this widget, and has Qt delete it once none of its events
    // is running. A loop inside a handler would otherwise delete it below the event.
    void abandon();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool) override { return false; } // Tab is a key like any other

private:
    void takePlace();
    void tellFocus();

    HWND m_handle;
    qreal m_ratio = 1; // pixels of the screen to one logical pixel
    // The widget is taking its size and place from the window, so Qt's events about them are no news.
    bool m_following = false;
    int m_eventsRunning = 0;
    bool m_isToBeDeleted = false; // when no event runs any more
    QPoint m_wheelRest;           // turns of the wheel that make no whole notch yet
};

// Made when first asked for.
HostWidget& hostOf(Window& root);
// Brings the widget in line with the window. A window gets its widget when it is first shown.
void followWindow(Window& root, bool mayActivate);
void destroyHost(Window& root);

}
