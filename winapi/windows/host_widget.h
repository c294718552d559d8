// The widget that stands for a top-level window: shows its pixels, feeds input in.
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

    // Size, place, visibility, state and title as the window has them.
    void follow(bool mayActivate);
    void takeActivation();
    // Hands the keyboard to the next widget of the application around.
    bool passFocus(bool next) { return QWidget::focusNextPrevChild(next); }
    // The window is gone: this goes as well, now or when the event at hand is done.
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
    void inputMethodEvent(QInputMethodEvent* event) override;
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
    bool focusNextPrevChild(bool) override { return false; } // Tab is a key like any other

private:
    void takePlace();
    void tellFocus();

    HWND m_handle;
    int m_eventDepth = 0;
    qreal m_ratio = 1;        // pixels of the screen to one of ours
    bool m_following = false; // what Qt tells meanwhile is our own doing
    QPoint m_wheelRest;       // of a notch
};

HostWidget& hostOf(Window& root);
// Brings the widget in line with the window; a window gets its widget when it is first shown.
void followWindow(Window& root, bool mayActivate);
void destroyHost(Window& root);

}
