// Dialogs that wait for the user: what they give, and their owner while they are open.
#include "Hands.h"
#include "MessageRecorder.h"

#include <commdlg.h>
#include <gtest/gtest.h>

namespace {

// They are answered by hand, key after key.
class Dialogs : public testing::Test
{
protected:
    void SetUp() override { s_top = top = recorder.createTop("t"); }

    void answer(std::vector<int> keys)
    {
        constexpr UINT pause = 300;
        s_ownerWasEnabled = false;
        s_keys = std::move(keys);
        SetTimer(top, 1, pause, [](HWND, UINT, UINT_PTR, DWORD) {
            s_ownerWasEnabled |= IsWindowEnabled(s_top) != 0;
            const int key = s_keys.front();
            if (s_keys.size() > 1)
                s_keys.erase(s_keys.begin());
            pressKey(key);
            releaseKey(key);
        });
    }

    void expectOwnerBack()
    {
        KillTimer(top, 1);
        EXPECT_FALSE(s_ownerWasEnabled);
        EXPECT_TRUE(IsWindowEnabled(top));
        EXPECT_EQ(GetActiveWindow(), top);
    }

    MessageRecorder recorder;
    HWND top = nullptr;

private:
    static inline HWND s_top;
    static inline std::vector<int> s_keys;
    static inline bool s_ownerWasEnabled;
};

TEST_F(Dialogs, MessageBoxesGiveTheButtonPressed)
{
    const struct
    {
        UINT type;
        std::vector<int> keys;
        int expected;
    } cases[] = {
        {MB_OKCANCEL | MB_ICONWARNING, {VK_ESCAPE}, IDCANCEL},
        {MB_YESNO | MB_DEFBUTTON2 | MB_ICONQUESTION, {VK_RETURN}, IDNO},
        {MB_YESNOCANCEL | MB_DEFBUTTON3, {VK_RETURN}, IDCANCEL},
#ifndef _WIN32 // Wine takes Escape for a cancellation of these, other than Windows
        {MB_OK, {VK_ESCAPE}, IDOK},
        {MB_YESNO, {VK_ESCAPE, VK_RETURN}, IDYES},
#endif
    };
    for (const auto& one : cases) {
        answer(one.keys);
        EXPECT_EQ(MessageBoxA(top, "a < b & c", "Title", one.type), one.expected) << one.type;
        expectOwnerBack();
    }
}

TEST_F(Dialogs, ColorsAreChosenOrNot)
{
    COLORREF custom[16] = {RGB(1, 2, 3)};
    for (const int key : {VK_RETURN, VK_ESCAPE}) {
        CHOOSECOLORA dialog{};
        dialog.lStructSize = static_cast<DWORD>(sizeof dialog);
        dialog.hwndOwner = top;
        dialog.rgbResult = RGB(10, 200, 30);
        dialog.lpCustColors = custom;
        dialog.Flags = CC_RGBINIT;
        answer({key});
        EXPECT_EQ(ChooseColorA(&dialog), key == VK_RETURN);
        EXPECT_EQ(dialog.rgbResult, RGB(10, 200, 30));
        EXPECT_EQ(custom[0], RGB(1, 2, 3));
        expectOwnerBack();
    }
}

TEST_F(Dialogs, FilesAreChosenOrNot)
{
    for (const int key : {VK_RETURN, VK_ESCAPE}) {
        char path[MAX_PATH] = "no-such-file";
        OPENFILENAMEA dialog{};
        dialog.lStructSize = static_cast<DWORD>(sizeof dialog);
        dialog.hwndOwner = top;
        dialog.lpstrFilter = "Texts (*.txt)\0*.txt\0All files\0*.*\0";
        dialog.nFilterIndex = 1;
        dialog.lpstrFile = path;
        dialog.nMaxFile = MAX_PATH;
        dialog.lpstrDefExt = "txt";
        dialog.Flags = OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
        answer({key});
        const bool chosen = GetSaveFileNameA(&dialog);
        EXPECT_EQ(chosen, key == VK_RETURN);
        EXPECT_EQ(CommDlgExtendedError(), 0u);
        expectOwnerBack();
        if (!chosen)
            continue;
        EXPECT_STREQ(path + dialog.nFileOffset, "no-such-file.txt");
        EXPECT_STREQ(path + dialog.nFileExtension, "txt");
        EXPECT_GT(dialog.nFileOffset, 1);
    }
}

}
