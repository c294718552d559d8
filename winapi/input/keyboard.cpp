// Keys: Qt's become virtual keys and messages, and it is noted which are down.
#include "keyboard.h"

#include "message_queue.h"

#include <QGuiApplication>
#include <QKeyEvent>

#include <algorithm>
#include <array>
#include <string_view>

namespace winapi {

namespace {

struct KeyPair
{
    int qt;
    int key;
    bool extended = false; // by this bit it differs from the same key of the number pad
};
constexpr KeyPair kKeyPairs[] = {
    {Qt::Key_Backspace, VK_BACK},        {Qt::Key_Tab, VK_TAB},
    {Qt::Key_Backtab, VK_TAB},           {Qt::Key_Return, VK_RETURN},
    {Qt::Key_Enter, VK_RETURN, true},    {Qt::Key_Shift, VK_SHIFT},
    {Qt::Key_Control, VK_CONTROL},       {Qt::Key_Alt, VK_MENU},
    {Qt::Key_AltGr, VK_MENU, true},      {Qt::Key_Pause, VK_PAUSE},
    {Qt::Key_CapsLock, VK_CAPITAL},      {Qt::Key_Escape, VK_ESCAPE},
    {Qt::Key_Space, VK_SPACE},           {Qt::Key_PageUp, VK_PRIOR, true},
    {Qt::Key_PageDown, VK_NEXT, true},   {Qt::Key_End, VK_END, true},
    {Qt::Key_Home, VK_HOME, true},       {Qt::Key_Left, VK_LEFT, true},
    {Qt::Key_Up, VK_UP, true},           {Qt::Key_Right, VK_RIGHT, true},
    {Qt::Key_Down, VK_DOWN, true},       {Qt::Key_Print, VK_SNAPSHOT, true},
    {Qt::Key_Insert, VK_INSERT, true},   {Qt::Key_Delete, VK_DELETE, true},
    {Qt::Key_Clear, VK_CLEAR},           {Qt::Key_Super_L, VK_LWIN, true},
    {Qt::Key_Super_R, VK_RWIN, true},    {Qt::Key_Menu, VK_APPS, true},
    {Qt::Key_NumLock, VK_NUMLOCK, true}, {Qt::Key_ScrollLock, VK_SCROLL},
    {Qt::Key_Semicolon, VK_OEM_1},       {Qt::Key_Colon, VK_OEM_1},
    {Qt::Key_Plus, VK_OEM_PLUS},         {Qt::Key_Equal, VK_OEM_PLUS},
    {Qt::Key_Comma, VK_OEM_COMMA},       {Qt::Key_Less, VK_OEM_COMMA},
    {Qt::Key_Minus, VK_OEM_MINUS},       {Qt::Key_Underscore, VK_OEM_MINUS},
    {Qt::Key_Period, VK_OEM_PERIOD},     {Qt::Key_Greater, VK_OEM_PERIOD},
    {Qt::Key_Slash, VK_OEM_2},           {Qt::Key_Question, VK_OEM_2},
};

// Keys of the number pad that type characters. Its other keys are in the table above, and are not extended.
constexpr KeyPair kPadPairs[] = {
    {Qt::Key_Asterisk, VK_MULTIPLY}, {Qt::Key_Plus, VK_ADD},      {Qt::Key_Minus, VK_SUBTRACT},
    {Qt::Key_Period, VK_DECIMAL},    {Qt::Key_Comma, VK_DECIMAL}, {Qt::Key_Slash, VK_DIVIDE, true},
};

template <std::size_t Count>
const KeyPair* findPair(const KeyPair (&pairs)[Count], int qt)
{
    const auto found =
        std::find_if(std::begin(pairs), std::end(pairs), [qt](const KeyPair& p) { return p.qt == qt; });
    return found == std::end(pairs) ? nullptr : found;
}

WORD scanCodeOf(const QKeyEvent& event)
{
    // X11 and Wayland count the codes of a PC keyboard from 8.
    constexpr quint32 kBase = 8;
    const quint32 code = event.nativeScanCode();
    return static_cast<WORD>(code > kBase ? (code - kBase) & 0xff : 0);
}

// The letter or digit at the place of a key on an American keyboard, which is its virtual key on layouts that
// are not Latin; 0 for other places.
int keyAtPlace(WORD scanCode)
{
    struct Row
    {
        WORD firstScanCode;
        std::string_view keys;
    };
    constexpr Row kRows[] = {{2, "1234567890"}, {16, "QWERTYUIOP"}, {30, "ASDFGHJKL"}, {44, "ZXCVBNM"}};
    for (const Row& row : kRows)
        if (scanCode >= row.firstScanCode && scanCode - row.firstScanCode < static_cast<int>(row.keys.size()))
            return row.keys[static_cast<std::size_t>(scanCode - row.firstScanCode)];
    return 0;
}

// The virtual key of an event; 0 when it has none.
KeyPair translated(const QKeyEvent& event)
{
    const int qt = event.key();
    const bool pad = event.modifiers() & Qt::KeypadModifier;
    if (qt >= Qt::Key_A && qt <= Qt::Key_Z)
        return {qt, 'A' + (qt - Qt::Key_A)};
    if (qt >= Qt::Key_0 && qt <= Qt::Key_9)
        return {qt, (pad ? VK_NUMPAD0 : '0') + (qt - Qt::Key_0)};
    if (qt >= Qt::Key_F1 && qt <= Qt::Key_F24)
        return {qt, VK_F1 + (qt - Qt::Key_F1)};
    if (const KeyPair* const found = pad ? findPair(kPadPairs, qt) : nullptr)
        return *found;
    const KeyPair* const found = findPair(kKeyPairs, qt);
    if (!found)
        return {qt, event.text().isEmpty() ? 0 : keyAtPlace(scanCodeOf(event))};
    return {qt, found->key, found->extended && (!pad || found->key == VK_RETURN)};
}

constexpr BYTE kDownBit = 0x80;
constexpr BYTE kToggleBit = 0x01;

// The state of each virtual key at the time of the message taken last.
std::array<BYTE, 256>& states()
{
    static std::array<BYTE, 256> keys{};
    return keys;
}

}

void noteKey(int key, bool down)
{
    BYTE& state = states()[static_cast<std::size_t>(key)];
    if (down && !(state & kDownBit))
        state ^= kToggleBit;
    state = static_cast<BYTE>(down ? state | kDownBit : state & ~kDownBit);
}

bool isDown(int key)
{
    return states()[static_cast<std::size_t>(key)] & kDownBit;
}

void noteModifiers(Qt::KeyboardModifiers modifiers)
{
    constexpr struct
    {
        Qt::KeyboardModifier modifier;
        int key;
    } kKeys[] = {
        {Qt::ShiftModifier, VK_SHIFT}, {Qt::ControlModifier, VK_CONTROL}, {Qt::AltModifier, VK_MENU}};
    for (const auto& [modifier, key] : kKeys)
        noteKey(key, modifiers.testFlag(modifier));
}

namespace {

// Whether the event types text: no control character, and no command of Control or Alt.
bool isTyped(const QKeyEvent& event)
{
    const bool command = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return !command && !event.text().isEmpty() && event.text().front().isPrint();
}

}

void postKey(const QKeyEvent& event, bool up)
{
    const KeyPair key = translated(event);
    if (!key.key) {
        if (!up && isTyped(event))
            postText(event.text());
        return;
    }
    const bool alt = event.modifiers().testFlag(Qt::AltModifier) || key.key == VK_MENU;
    postInput(KeyInput{key.key, up, alt, scanCodeOf(event), key.extended, up ? QString() : event.text(),
                       event.modifiers()});
}

void postText(const QString& text)
{
    const auto modifiers = QGuiApplication::keyboardModifiers();
    postInput(KeyInput{VK_PACKET, false, false, 0, false, text, modifiers});
    postInput(KeyInput{VK_PACKET, true, false, 0, false, {}, modifiers});
}

std::optional<MSG> toMessage(const KeyInput& input)
{
    const bool isModifier = input.key == VK_SHIFT || input.key == VK_CONTROL || input.key == VK_MENU;
    if (!isModifier)
        noteModifiers(input.modifiers);
    const bool wasDown = isDown(input.key);
    noteKey(input.key, !input.up);
    const HWND target = GetFocus() ? GetFocus() : GetActiveWindow();
    if (!target)
        return std::nullopt;
    const bool control = isDown(VK_CONTROL);
    const bool system = (input.alt && !control) || input.key == VK_F10 || !GetFocus();

    WORD flags = input.scanCode;
    flags |= input.extended ? KF_EXTENDED : 0;
    flags |= input.alt ? KF_ALTDOWN : 0;
    flags |= wasDown ? KF_REPEAT : 0;
    flags |= input.up ? KF_UP : 0;
    const UINT message = input.up ? (system ? WM_SYSKEYUP : WM_KEYUP) : (system ? WM_SYSKEYDOWN : WM_KEYDOWN);
    return makeMessage(target, message, static_cast<WPARAM>(input.key),
                       static_cast<LONG>(1u | (static_cast<DWORD>(flags) << 16)));
}

QString charactersOf(int key)
{
    const bool shift = isDown(VK_SHIFT);
    const bool capitals = GetKeyState(VK_CAPITAL) & kToggleBit;
    if (key >= 'A' && key <= 'Z')
        return QChar(shift != capitals ? key : key - 'A' + 'a');
    const bool plain =
        key == VK_SPACE || key == VK_BACK || key == VK_TAB || key == VK_RETURN || key == VK_ESCAPE;
    if (plain || (key >= '0' && key <= '9' && !shift))
        return QChar(key);
    return {};
}

}

using namespace winapi;

SHORT GetKeyState(int key)
{
    if (key < 0 || key > 255)
        return 0;
    const BYTE state = states()[static_cast<std::size_t>(key)];
    return static_cast<SHORT>((state & kDownBit ? 0x8000 : 0) | (state & kToggleBit));
}

BOOL SetKeyboardState(BYTE* state)
{
    if (!state)
        return FALSE;
    std::copy_n(state, states().size(), states().begin());
    return TRUE;
}
