// Fills the lists from the calendar's settings, and changes these as the user says.
#include "dates_panel.h"

#include "date_editor.h"
#include "failure.h"
#include "resource.h"
#include "rule_text.h"
#include "swatch.h"

#include <stdio.h>

static const COLORREF white = RGB(255, 255, 255);

// The colours that the groups have at first.
static const COLORREF groupColors[] = {RGB(0x2a, 0x6f, 0xc9), RGB(0xd0, 0x3a, 0x3a), RGB(0xe8, 0x80, 0x1a),
                                       RGB(0x2e, 0x9b, 0x4f), RGB(0x8a, 0x4f, 0xbf)};

// Where a date of the user's stands. The rows of the list are the own dates, and then the to-dos.
typedef struct Place
{
    int group;
    uint32_t index;
} Place;

static HWND itemOf(const DatesPanel* panel, int id)
{
    return GetDlgItem(panel->dialog, id);
}

static zeb17_group_info groupInfo(const DatesPanel* panel, int group)
{
    zeb17_group_info info = {.size = sizeof info};
    zeb17_group_get(panel->settings, group, &info);
    return info;
}

// The row that the first date of a group has.
static uint32_t firstRow(const DatesPanel* panel, int group)
{
    return group == ZEB17_TODO ? groupInfo(panel, ZEB17_CUSTOM).count : 0;
}

static Place placeOf(const DatesPanel* panel, int row)
{
    Place place = {(uint32_t)row < firstRow(panel, ZEB17_TODO) ? ZEB17_CUSTOM : ZEB17_TODO, 0};
    place.index = (uint32_t)row - firstRow(panel, place.group);
    return place;
}

static zeb17_entry entryAt(const DatesPanel* panel, Place place)
{
    zeb17_entry entry = {.size = sizeof entry};
    zeb17_entry_get(panel->settings, place.group, place.index, &entry);
    return entry;
}

// The colour of a group; `otherwise` for one without entries, or with many colours.
static COLORREF colorOfGroup(const DatesPanel* panel, int group, COLORREF otherwise)
{
    const COLORREF color = groupInfo(panel, group).color;
    return color == ZEB17_MIXED_COLORS ? otherwise : color;
}

static void fillGroups(const DatesPanel* panel)
{
    SwatchRows rows = beginSwatchRows(itemOf(panel, IDC_GROUPS));
    for (int group = 0; group < COUNT_OF(groupColors); ++group) {
        const zeb17_group_info info = groupInfo(panel, group);
        char name[NAME_SIZE] = "";
        char text[NAME_SIZE + 16];
        zeb17_group_name(group, name, sizeof name, NULL);
        snprintf(text, sizeof text, "%s (%u)", name, (unsigned int)info.count);
        addSwatchRow(&rows, text, colorOfGroup(panel, group, white), info.shown > 0);
    }
    endSwatchRows(&rows);
}

static void fillDates(const DatesPanel* panel)
{
    SwatchRows rows = beginSwatchRows(itemOf(panel, IDC_DATES));
    const uint32_t count = firstRow(panel, ZEB17_TODO) + groupInfo(panel, ZEB17_TODO).count;
    for (uint32_t row = 0; row < count; ++row) {
        const Place place = placeOf(panel, (int)row);
        const zeb17_entry entry = entryAt(panel, place);
        char text[DATE_TEXT_SIZE] = "";
        char line[DATE_TEXT_SIZE + 16];
        zeb17_entry_text(panel->settings, place.group, place.index, text, sizeof text, NULL);
        snprintf(line, sizeof line, "%s%s", place.group == ZEB17_TODO ? "To do: " : "", text);
        addSwatchRow(&rows, line, entry.color, entry.shown);
    }
    endSwatchRows(&rows);
}

// A button, and the same command in the menu. A disabled button would keep the focus from the keys.
static void enableCommand(const DatesPanel* panel, int id, int isEnabled)
{
    const HWND button = itemOf(panel, id);
    if (!isEnabled && button && GetFocus() == button)
        SendMessage(panel->dialog, WM_NEXTDLGCTL, (WPARAM)itemOf(panel, IDC_DATES), TRUE);
    EnableWindow(button, isEnabled);
    EnableMenuItem(GetMenu(panel->dialog), (UINT)id, isEnabled ? MF_ENABLED : MF_GRAYED);
}

static void showSelected(const DatesPanel* panel)
{
    const HWND list = itemOf(panel, IDC_DATES);
    const int row = selectedRow(list);
    char words[RULE_TEXT_SIZE] = "Choose a date to see when it falls.";
    if (row >= 0) {
        const zeb17_entry entry = entryAt(panel, placeOf(panel, row));
        describeRule(words, &entry);
    } else if (ListView_GetItemCount(list) == 0)
        snprintf(words, sizeof words, "Add a date to see it in the calendar.");
    SetDlgItemText(panel->dialog, IDC_WORDS, words);
    enableCommand(panel, IDM_EDIT, row >= 0);
    enableCommand(panel, IDM_DELETE, row >= 0);
    enableCommand(panel, IDM_SAVE, panel->isChanged);
}

static void fill(DatesPanel* panel)
{
    zeb17_refresh(panel->calendar);
    panel->isFilling = 1;
    fillGroups(panel);
    fillDates(panel);
    panel->isFilling = 0;
    showSelected(panel);
}

// Follows a call that was to change the dates.
static void follow(DatesPanel* panel, int result)
{
    if (result != ZEB17_OK)
        tellResult(panel->dialog, "The calendar could not do that.", result);
    panel->isChanged |= result == ZEB17_OK;
    fill(panel);
}

// A new date begins as the calendar's day, of every year.
static DateEdit newDate(const DatesPanel* panel)
{
    DateEdit edit = {.isNew = 1, .group = ZEB17_CUSTOM};
    zeb17_entry entry = {.size = sizeof entry, .shown = 1, .rule = ZEB17_DAY};
    zeb17_date day = {1, 1, 1};
    zeb17_get_date(panel->calendar, &day, NULL);
    zeb17_weekday(&day, &entry.weekday);
    entry.color = colorOfGroup(panel, ZEB17_CUSTOM, groupColors[ZEB17_CUSTOM]);
    entry.day = day.day;
    entry.month = day.month;
    entry.near_weekday = entry.weekday;
    edit.entry = entry;
    return edit;
}

static void addDate(DatesPanel* panel)
{
    DateEdit edit = newDate(panel);
    uint32_t index = 0;
    if (!editDate(panel->dialog, &edit))
        return;
    follow(panel, zeb17_entry_add(panel->settings, edit.group, &edit.entry, edit.text, &index));
    selectRow(itemOf(panel, IDC_DATES), (int)(firstRow(panel, edit.group) + index));
}

static void changeDate(DatesPanel* panel)
{
    const int row = selectedRow(itemOf(panel, IDC_DATES));
    const Place place = placeOf(panel, row);
    DateEdit edit = {0};
    if (row < 0)
        return;
    edit.group = place.group;
    edit.entry = entryAt(panel, place);
    zeb17_entry_text(panel->settings, place.group, place.index, edit.text, sizeof edit.text, NULL);
    if (editDate(panel->dialog, &edit))
        follow(panel, zeb17_entry_set(panel->settings, place.group, place.index, &edit.entry, edit.text));
}

static void deleteDate(DatesPanel* panel)
{
    const int row = selectedRow(itemOf(panel, IDC_DATES));
    const Place place = placeOf(panel, row);
    if (row >= 0)
        follow(panel, zeb17_entry_delete(panel->settings, place.group, place.index));
}

static void chooseGroupColor(DatesPanel* panel)
{
    const int group = selectedRow(itemOf(panel, IDC_GROUPS));
    uint32_t color = colorOfGroup(panel, group, white);
    if (group >= 0 && chooseColor(panel->dialog, &color))
        follow(panel, zeb17_group_set_color(panel->settings, group, color));
}

static void save(DatesPanel* panel)
{
    const int result = zeb17_settings_save(panel->settings);
    if (result != ZEB17_OK)
        tellResult(panel->dialog, "Your dates could not be saved.", result);
    panel->isChanged = result != ZEB17_OK;
    showSelected(panel);
}

// Enter, or a double click, in a list.
static void activate(DatesPanel* panel)
{
    const HWND focus = GetFocus();
    if (focus == itemOf(panel, IDC_DATES))
        changeDate(panel);
    else if (focus == itemOf(panel, IDC_GROUPS))
        chooseGroupColor(panel);
}

static const struct
{
    int id;
    void (*run)(DatesPanel* panel);
} commands[] = {{IDM_ADD, addDate},       {IDM_EDIT, changeDate},
                {IDM_DELETE, deleteDate}, {IDM_GROUP_COLOR, chooseGroupColor},
                {IDM_SAVE, save},         {IDOK, activate}};

void runDatesCommand(DatesPanel* panel, int id)
{
    for (int i = 0; i < COUNT_OF(commands) && panel->settings; ++i)
        if (commands[i].id == id)
            commands[i].run(panel);
}

static void showRow(DatesPanel* panel, HWND list, int row)
{
    const int isShown = ListView_GetCheckState(list, row) != 0;
    if (list == itemOf(panel, IDC_GROUPS)) {
        follow(panel, zeb17_group_set_shown(panel->settings, row, isShown));
        return;
    }
    const Place place = placeOf(panel, row);
    zeb17_entry entry = entryAt(panel, place);
    entry.shown = isShown;
    follow(panel, zeb17_entry_set(panel->settings, place.group, place.index, &entry, NULL));
}

static void followItem(DatesPanel* panel, const NMLISTVIEW* item)
{
    const UINT changes = item->uNewState ^ item->uOldState;
    if (changes & LVIS_STATEIMAGEMASK)
        showRow(panel, item->hdr.hwndFrom, item->iItem);
    else if (changes & LVIS_SELECTED)
        showSelected(panel);
}

void notifyDatesPanel(DatesPanel* panel, const NMHDR* header)
{
    if (!panel->settings || panel->isFilling)
        return;
    if (header->code == LVN_ITEMCHANGED)
        followItem(panel, (const NMLISTVIEW*)header);
    else if (header->code == NM_DBLCLK)
        activate(panel);
    else if (header->code == LVN_KEYDOWN && header->idFrom == IDC_DATES &&
             ((const NMLVKEYDOWN*)header)->wVKey == VK_DELETE)
        deleteDate(panel);
}

void startDatesPanel(DatesPanel* panel, HWND dialog, HWND calendar, int isReadable)
{
    panel->dialog = dialog;
    panel->calendar = calendar;
    startSwatchList(itemOf(panel, IDC_GROUPS));
    startSwatchList(itemOf(panel, IDC_DATES));
    for (int i = 0; i < COUNT_OF(commands); ++i)
        enableCommand(panel, commands[i].id, isReadable);
    if (!isReadable)
        return;
    zeb17_control_settings(calendar, &panel->settings);
    for (int group = 0; group < COUNT_OF(groupColors); ++group)
        if (groupInfo(panel, group).color == white) // not to be seen on the white grid
            zeb17_group_set_color(panel->settings, group, groupColors[group]);
    fill(panel);
    selectRow(itemOf(panel, IDC_GROUPS), 0);
}
