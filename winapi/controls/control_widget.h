// Widgets of Qt that do the work of controls.
#pragma once

#include "window.h"

#include <QPointer>
#include <QWidget>

namespace winapi {

// Stands over the widget of the control's top-level window. It never has Qt's focus and gets no input from
// Qt: all input comes by the control's messages, so that whoever sees those sees all of it.
class ControlWidget
{
public:
    explicit ControlWidget(std::unique_ptr<QWidget> widget);
    ~ControlWidget();
    ControlWidget(const ControlWidget&) = delete;
    ControlWidget& operator=(const ControlWidget&) = delete;

    // Takes the state of the control, at a place in its client area; without a place it is hidden.
    void follow(Window& control, const QRect& place);
    void setFont(HFONT font);
    // Draws it into the window's own pixels, for whoever copies those.
    void paint(HDC dc);

    // A mouse message of the control.
    void sendMouse(UINT message, LPARAM lParam);
    void sendKey(int qtKey, const QString& text = {});
    void sendFocus(bool gained);
    void sendComposition(QInputMethodEvent& event);
    QVariant answer(Qt::InputMethodQuery query) const;
    // Calls a slot without arguments.
    void call(const char* slot);
    // Steps of a wheel; true when the widget had a use for them.
    bool sendWheel(WPARAM wParam, LPARAM screenPoint);

private:
    QWidget* partAt(QPoint place) const;

    QPointer<QWidget> m_widget; // Qt destroys it with the host
    QPoint m_origin;            // in the control's client area
    QPointer<QWidget> m_held;   // the part of it that has got a press
};

// Qt's key for a virtual key that edits or moves; 0 for others.
int editingKey(WPARAM virtualKey);

}
