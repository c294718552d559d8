// What must not compile, one case at a time. Case 0 is the code around the cases, which compiles.
#include <StoredText.h>
#include <afxwin.h>

namespace {

#if CASE == 1
const std::vector<int> kText = StoredText<5>("Spring"); // one character too many
#elif CASE == 2
const std::vector<int> kText = StoredText<7>("Spring"); // one too few
#elif CASE == 3
const std::vector<int> kText = StoredText<2>("\xC3\xA9"); // not ASCII
#elif CASE == 4
const std::vector<int> kText = StoredText<3>("a\0b"); // a null
#elif CASE == 5
char g_text[] = "a";
const std::vector<int> kText = StoredText<1>(g_text); // not known before the program runs
#else
const std::vector<int> kText = StoredText<6>("Spring");
#endif

constexpr UINT kOwnMessage = 0x8000;

class CRefusedWnd : public CWnd
{
public:
    std::size_t Letters() const { return kText.size(); }

    afx_msg void OnCommand1() {}
    DECLARE_MESSAGE_MAP()

#if CASE == 6
    afx_msg void OnSize(UINT, int) {} // an argument is missing
#elif CASE == 7
    afx_msg void OnSize(UINT, int, long*) {}            // an argument of another type
#elif CASE == 8
    afx_msg int OnSize(UINT, int, int)
    {
        return 0;
    } // a result too many
#else
    afx_msg void OnSize(UINT, int, int) {}
#endif
#if CASE == 9
    afx_msg void OnOwnMessage(WPARAM, LPARAM) {} // without its result
#else
    afx_msg LRESULT OnOwnMessage(WPARAM, LPARAM)
    {
        return 0;
    }
#endif
};

BEGIN_MESSAGE_MAP(CRefusedWnd, CWnd)
    ON_WM_SIZE()
    ON_MESSAGE(kOwnMessage, &CRefusedWnd::OnOwnMessage)
#if CASE == 10
    ON_COMMAND(1, &CRefusedWnd::OnOwnMessage) // the handler of a message
#else
    ON_COMMAND(1, &CRefusedWnd::OnCommand1)
#endif
END_MESSAGE_MAP()

}
