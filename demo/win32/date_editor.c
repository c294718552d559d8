// Offers the parts that the chosen kind of rule has, and says what the rule means.
#include "date_editor.h"

#include "color.h"
#include "resource.h"
#include "rule_text.h"

#include <rule_words.h>

#include <commctrl.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#define COUNT_OF(table) (int)(sizeof(table) / sizeof(table)[0])

enum
{
    MAX_TEXT = 100, // characters
    MAX_YEAR = 9999
};

// Sets of rules.
enum
{
    FIXED_DAY = 1 << ZEB17_DAY,
    NEAR_RULES = 1 << ZEB17_NEAR_DAY | 1 << ZEB17_NEAR_WEEKDAY,
    BY_DAY = 1 << ZEB17_DAY | 1 << ZEB17_NEAR_DAY,
    BY_WEEKDAY = 1 << ZEB17_WEEKDAY | 1 << ZEB17_NEAR_WEEKDAY,
    ALL_RULES = BY_DAY | BY_WEEKDAY
};

// The lists, each with the number of an entry that it shows, and the rules that have this number.
static const struct
{
    int id;
    size_t offset;
    int rules;
} numbers[] = {
    {IDC_RULE, offsetof(zeb17_entry, rule), ALL_RULES},
    {IDC_NEAR_WEEKDAY, offsetof(zeb17_entry, near_weekday), NEAR_RULES},
    {IDC_OCCURRENCE, offsetof(zeb17_entry, occurrence), BY_WEEKDAY},
    {IDC_WEEKDAY, offsetof(zeb17_entry, weekday), BY_WEEKDAY},
    {IDC_MONTH, offsetof(zeb17_entry, month), ALL_RULES},
    {IDC_DAY, offsetof(zeb17_entry, day), BY_DAY},
    {IDC_YEARS, offsetof(zeb17_entry, years), ALL_RULES},
};

// The other controls that only some rules have.
static const struct
{
    int id;
    int rules;
} parts[] = {
    {IDC_NEAR_LABEL, NEAR_RULES},
    {IDC_SIDE, NEAR_RULES},
    {IDC_WHICH_LABEL, BY_WEEKDAY},
    {IDC_WORKING_DAY, FIXED_DAY},
};

static int32_t* numberOf(zeb17_entry* entry, int which)
{
    return (int32_t*)((char*)entry + numbers[which].offset);
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
        addChoice(dialog, IDC_NEAR_WEEKDAY, i + 1, names.weekdays[i]);
        addChoice(dialog, IDC_WEEKDAY, i + 1, names.weekdays[i]);
    }
    for (int i = 0; i < 12; ++i)
        addChoice(dialog, IDC_MONTH, i + 1, names.months[i]);
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
    for (int i = 0; i < COUNT_OF(numbers); ++i)
        choose(dialog, numbers[i].id, abs(*numberOf(&edit->entry, i)));
    choose(dialog, IDC_SIDE, edit->entry.near_weekday > 0 ? 1 : -1);
    CheckDlgButton(dialog, IDC_WORKING_DAY, edit->entry.working_day ? BST_CHECKED : BST_UNCHECKED);
    SetDlgItemInt(dialog, IDC_YEAR, (UINT)(edit->entry.year > 0 ? edit->entry.year : today.year), FALSE);
}

static int needsYear(const zeb17_entry* entry)
{
    return entry->years >= ZEB17_FROM_YEAR;
}

static void readText(HWND dialog, char text[DATE_TEXT_SIZE])
{
    GetDlgItemText(dialog, IDC_TEXT, text, DATE_TEXT_SIZE);
    const size_t spaces = strspn(text, " ");
    size_t length = strlen(text + spaces);
    memmove(text, text + spaces, length + 1);
    while (length > 0 && text[length - 1] == ' ')
        text[--length] = '\0';
}

// Numbers that the rule does not have become 0.
static void readEntry(HWND dialog, DateEdit* edit)
{
    zeb17_entry* const entry = &edit->entry;
    const int rule = 1 << chosen(dialog, IDC_RULE);
    readText(dialog, edit->text);
    edit->group = chosen(dialog, IDC_LIST);
    for (int i = 0; i < COUNT_OF(numbers); ++i)
        *numberOf(entry, i) = numbers[i].rules & rule ? chosen(dialog, numbers[i].id) : 0;
    entry->near_weekday *= chosen(dialog, IDC_SIDE);
    entry->working_day = rule == FIXED_DAY && IsDlgButtonChecked(dialog, IDC_WORKING_DAY) == BST_CHECKED;
    entry->year = needsYear(entry) ? (int32_t)GetDlgItemInt(dialog, IDC_YEAR, NULL, FALSE) : 0;
}

static void enable(HWND dialog, int id, int isEnabled)
{
    EnableWindow(GetDlgItem(dialog, id), isEnabled);
}

// Follows what the user has changed.
static void update(HWND dialog, DateEdit* edit)
{
    char meaning[RULE_TEXT_SIZE];
    zeb17_date next = {1, 1, 1};
    readEntry(dialog, edit);
    const int rule = 1 << edit->entry.rule;
    for (int i = 0; i < COUNT_OF(numbers); ++i)
        enable(dialog, numbers[i].id, numbers[i].rules & rule);
    for (int i = 0; i < COUNT_OF(parts); ++i)
        enable(dialog, parts[i].id, parts[i].rules & rule);
    enable(dialog, IDC_YEAR, needsYear(&edit->entry));
    enable(dialog, IDC_YEAR_SPIN, needsYear(&edit->entry));
    enable(dialog, IDOK, edit->text[0] && zeb17_rule_next(&edit->entry, &next, &next) != ZEB17_BAD_RULE);
    describeRule(meaning, &edit->entry);
    SetDlgItemText(dialog, IDC_MEANING, meaning);
}

static void start(HWND dialog, DateEdit* edit)
{
    SetWindowText(dialog, edit->isNew ? "New Date" : "Edit Date");
    SendDlgItemMessage(dialog, IDC_TEXT, EM_LIMITTEXT, MAX_TEXT, 0);
    SendDlgItemMessage(dialog, IDC_YEAR, EM_LIMITTEXT, 4, 0);
    SendDlgItemMessage(dialog, IDC_YEAR_SPIN, UDM_SETRANGE32, 1, MAX_YEAR);
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
        break;
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
    const HINSTANCE instance = GetModuleHandle(NULL);
    return DialogBoxParam(instance, MAKEINTRESOURCE(IDD_DATE), owner, editorProc, (LPARAM)edit) == 1;
}
