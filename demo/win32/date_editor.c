// Offers the parts that the chosen kind of rule has, and says what the rule means.
#include "date_editor.h"

#include "resource.h"
#include "rule_text.h"
#include "swatch.h"

#include <commctrl.h>
#include <shlwapi.h>
#include <stdio.h>
#include <stdlib.h>

// Sets of rules.
#define FIXED_DAY (1 << ZEB17_DAY)
#define BY_DAY (1 << ZEB17_DAY | 1 << ZEB17_NEAR_DAY)
#define BY_WEEKDAY (1 << ZEB17_WEEKDAY | 1 << ZEB17_NEAR_WEEKDAY)
#define NEAR_RULES (1 << ZEB17_NEAR_DAY | 1 << ZEB17_NEAR_WEEKDAY)
#define ALL_RULES (BY_DAY | BY_WEEKDAY)

// Controls that only some rules have, and the number of an entry that a list shows: none at the offset 0.
static const struct
{
    int id;
    int rules;
    size_t offset;
} parts[] = {
    {IDC_RULE, ALL_RULES, offsetof(zeb17_entry, rule)},
    {IDC_NEAR_LABEL, NEAR_RULES, 0},
    {IDC_NEAR_WEEKDAY, NEAR_RULES, offsetof(zeb17_entry, near_weekday)},
    {IDC_SIDE, NEAR_RULES, 0},
    {IDC_WHICH_LABEL, BY_WEEKDAY, 0},
    {IDC_OCCURRENCE, BY_WEEKDAY, offsetof(zeb17_entry, occurrence)},
    {IDC_WEEKDAY, BY_WEEKDAY, offsetof(zeb17_entry, weekday)},
    {IDC_MONTH, ALL_RULES, offsetof(zeb17_entry, month)},
    {IDC_DAY, BY_DAY, offsetof(zeb17_entry, day)},
    {IDC_WORKING_DAY, FIXED_DAY, 0},
    {IDC_YEARS, ALL_RULES, offsetof(zeb17_entry, years)},
};

static int32_t* numberOf(zeb17_entry* entry, int part)
{
    return (int32_t*)((char*)entry + parts[part].offset);
}

static void addChoice(HWND dialog, int id, int value, const char* name)
{
    const LRESULT place = SendDlgItemMessage(dialog, id, CB_ADDSTRING, 0, (LPARAM)name);
    SendDlgItemMessage(dialog, id, CB_SETITEMDATA, (WPARAM)place, value);
}

static void addChoices(HWND dialog, int id, const DeskChoice* choices, int count)
{
    for (int i = 0; i < count; ++i)
        addChoice(dialog, id, choices[i].value, choices[i].name);
}

// What the chosen line of a list stands for.
static int chosen(HWND dialog, int id)
{
    const LRESULT place = SendDlgItemMessage(dialog, id, CB_GETCURSEL, 0, 0);
    return (int)SendDlgItemMessage(dialog, id, CB_GETITEMDATA, (WPARAM)place, 0);
}

// Chooses the line that stands for a value; the first one if there is none.
static void choose(HWND dialog, int id, int value)
{
    LRESULT place = SendDlgItemMessage(dialog, id, CB_GETCOUNT, 0, 0) - 1;
    while (place > 0 && SendDlgItemMessage(dialog, id, CB_GETITEMDATA, (WPARAM)place, 0) != value)
        --place;
    SendDlgItemMessage(dialog, id, CB_SETCURSEL, (WPARAM)place, 0);
}

static void fillLists(HWND dialog)
{
    static const DeskChoice sides[] = {{-1, "before"}, {1, "after"}};
    DateNames names = {0};
    char text[NAME_SIZE];
    for (int group = ZEB17_CUSTOM; group <= ZEB17_TODO; ++group)
        if (zeb17_group_name(group, text, sizeof text, NULL) == ZEB17_OK)
            addChoice(dialog, IDC_LIST, group, text);
    addChoices(dialog, IDC_RULE, deskRuleKinds, COUNT_OF(deskRuleKinds));
    addChoices(dialog, IDC_SIDE, sides, COUNT_OF(sides));
    addChoices(dialog, IDC_OCCURRENCE, deskOccurrences, COUNT_OF(deskOccurrences));
    addChoices(dialog, IDC_YEARS, deskYears, COUNT_OF(deskYears));
    getDateNames(&names);
    for (int i = 0; i < 7; ++i) {
        addChoice(dialog, IDC_NEAR_WEEKDAY, i + 1, names.names.weekdays[i]);
        addChoice(dialog, IDC_WEEKDAY, i + 1, names.names.weekdays[i]);
    }
    for (int i = 0; i < 12; ++i)
        addChoice(dialog, IDC_MONTH, i + 1, names.names.months[i]);
    for (int day = 1; day <= 31; ++day) {
        snprintf(text, sizeof text, "%d", day);
        addChoice(dialog, IDC_DAY, day, text);
    }
}

static void showEntry(HWND dialog, DateEdit* edit)
{
    zeb17_date today = {1, 1, 1};
    zeb17_today(&today);
    SetDlgItemText(dialog, IDC_TEXT, edit->text);
    choose(dialog, IDC_LIST, edit->group);
    for (int i = 0; i < COUNT_OF(parts); ++i)
        if (parts[i].offset)
            choose(dialog, parts[i].id, abs(*numberOf(&edit->entry, i)));
    choose(dialog, IDC_SIDE, edit->entry.near_weekday > 0 ? 1 : -1);
    CheckDlgButton(dialog, IDC_WORKING_DAY, edit->entry.working_day ? BST_CHECKED : BST_UNCHECKED);
    SetDlgItemInt(dialog, IDC_YEAR, (UINT)(edit->entry.year > 0 ? edit->entry.year : today.year), FALSE);
}

// Numbers that the rule does not have become 0.
static void readEntry(HWND dialog, DateEdit* edit)
{
    zeb17_entry* const entry = &edit->entry;
    const int rule = 1 << chosen(dialog, IDC_RULE);
    GetDlgItemText(dialog, IDC_TEXT, edit->text, sizeof edit->text);
    StrTrim(edit->text, " ");
    edit->group = chosen(dialog, IDC_LIST);
    for (int i = 0; i < COUNT_OF(parts); ++i)
        if (parts[i].offset)
            *numberOf(entry, i) = parts[i].rules & rule ? chosen(dialog, parts[i].id) : 0;
    entry->near_weekday *= chosen(dialog, IDC_SIDE);
    entry->working_day = rule == FIXED_DAY && IsDlgButtonChecked(dialog, IDC_WORKING_DAY) == BST_CHECKED;
    if (entry->years >= ZEB17_FROM_YEAR)
        entry->year = (int32_t)GetDlgItemInt(dialog, IDC_YEAR, NULL, FALSE);
}

static void enable(HWND dialog, int id, int isEnabled)
{
    EnableWindow(GetDlgItem(dialog, id), isEnabled);
}

// Follows what the user has changed.
static void update(HWND dialog, DateEdit* edit)
{
    char meaning[RULE_TEXT_SIZE];
    readEntry(dialog, edit);
    const int rule = 1 << edit->entry.rule;
    for (int i = 0; i < COUNT_OF(parts); ++i)
        enable(dialog, parts[i].id, parts[i].rules & rule);
    enable(dialog, IDC_YEAR, edit->entry.years >= ZEB17_FROM_YEAR);
    enable(dialog, IDC_YEAR_SPIN, edit->entry.years >= ZEB17_FROM_YEAR);
    enable(dialog, IDOK, describeRule(meaning, &edit->entry) && edit->text[0]);
    SetDlgItemText(dialog, IDC_MEANING, meaning);
}

static void start(HWND dialog, DateEdit* edit)
{
    SetWindowText(dialog, edit->isNew ? "New Date" : "Edit Date");
    SendDlgItemMessage(dialog, IDC_TEXT, EM_LIMITTEXT, 100, 0);
    SendDlgItemMessage(dialog, IDC_YEAR_SPIN, UDM_SETRANGE32, 1, 9999);
    enable(dialog, IDC_LIST, edit->isNew);
    fillLists(dialog);
    showEntry(dialog, edit);
    SetWindowLongPtr(dialog, DWLP_USER, (LONG_PTR)edit); // from now on changes are the user's
    update(dialog, edit);
}

static void command(HWND dialog, DateEdit* edit, int id)
{
    switch (id) {
    case IDOK: // Enter comes here also while the date is not complete
        if (IsWindowEnabled(GetDlgItem(dialog, IDOK)))
            EndDialog(dialog, 1);
        break;
    case IDCANCEL:
        EndDialog(dialog, 0);
        break;
    case IDC_CHOOSE_COLOR:
        if (chooseColor(dialog, &edit->entry.color))
            InvalidateRect(GetDlgItem(dialog, IDC_COLOR), NULL, FALSE);
        break;
    default:
        update(dialog, edit);
    }
}

static INT_PTR CALLBACK editorProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    DateEdit* const edit = (DateEdit*)GetWindowLongPtr(dialog, DWLP_USER);
    if (message == WM_INITDIALOG) {
        start(dialog, (DateEdit*)lParam);
        return TRUE;
    }
    if (!edit)
        return FALSE;
    if (message == WM_DRAWITEM) {
        const DRAWITEMSTRUCT* const item = (const DRAWITEMSTRUCT*)lParam;
        drawSwatch(item->hDC, &item->rcItem, edit->entry.color);
        return TRUE;
    }
    if (message != WM_COMMAND)
        return FALSE;
    command(dialog, edit, LOWORD(wParam));
    return TRUE;
}

int editDate(HWND owner, DateEdit* edit)
{
    return DialogBoxParam(GetModuleHandle(NULL), MAKEINTRESOURCE(IDD_DATE), owner, editorProc,
                          (LPARAM)edit) == 1;
}
