// Fills the lists from the calendar's settings, and changes these as the user says.
#include "dates_panel.h"

#include "color.h"
#include "date_editor.h"
#include "failure.h"
#include "resource.h"
#include "rule_text.h"
#include "swatch_list.h"

#include <stdio.h>

#define COUNT_OF(table) (int)(sizeof(table) / sizeof(table)[0])

enum
{
    GROUP_COUNT = ZEB17_TODO + 1
};

static const COLORREF white = RGB(255, 255, 255);

// The colours that groups have at first.
static const COLORREF groupColors[GROUP_COUNT] = {RGB(0x2a, 0x6f, 0xc9), RGB(0xd0, 0x3a, 0x3a),
                                                  RGB(0xe8, 0x80, 0x1a), RGB(0x2e, 0x9b, 0x4f),
                                                  RGB(0x8a, 0x4f, 0xbf)};

// Where a date of the user's stands. The rows of the list are the own dates, and then the to-dos.
typedef struct Place
{
    int group;
    uint32_t index;
} Place;

static HWND listOf(const DatesPanel* panel, int id)
{
    return GetDlgItem(panel->dialog, id);
}

static zeb17_group_info groupInfo(const DatesPanel* panel, int group)
{
    zeb17_group_info info = {0};
    info.size = sizeof info;
    zeb17_group_get(panel->settings, group, &info);
    return info;
}

static Place placeOf(const DatesPanel* panel, int row)
{
    const uint32_t ownCount = groupInfo(panel, ZEB17_CUSTOM).count;
    const uint32_t index = (uint32_t)row;
    const Place own = {ZEB17_CUSTOM, index};
    const Place toDo = {ZEB17_TODO, index - ownCount};
    return index < ownCount ? own : toDo;
}

static int rowOf(const DatesPanel* panel, Place place)
{
    const uint32_t before = place.group == ZEB17_TODO ? groupInfo(panel, ZEB17_CUSTOM).count : 0;
    return (int)(before + place.index);
}

static zeb17_entry entryAt(const DatesPanel* panel, Place place)
{
    zeb17_entry entry = {0};
    entry.size = sizeof entry;
    zeb17_entry_get(panel->settings, place.group, place.index, &entry);
    return entry;
}

// A group without entries, or with many colours, has none.
static COLORREF colorOfGroup(const DatesPanel* panel, int group)
{
    const COLORREF color = groupInfo(panel, group).color;
    return color == ZEB17_MIXED_COLORS ? white : color;
}

// ---- Filling

static void fillGroups(const DatesPanel* panel)
{
    SwatchRows rows;
    beginSwatchRows(&rows, listOf(panel, IDC_GROUPS));
    for (int group = 0; group < GROUP_COUNT; ++group) {
        const zeb17_group_info info = groupInfo(panel, group);
        char name[NAME_SIZE] = "";
        char text[NAME_SIZE + 16];
        zeb17_group_name(group, name, sizeof name, NULL);
        snprintf(text, sizeof text, "%s (%u)", name, (unsigned int)info.count);
        addSwatchRow(&rows, text, colorOfGroup(panel, group), info.shown > 0);
    }
    endSwatchRows(&rows);
}

static void addDateRow(const DatesPanel* panel, SwatchRows* rows, Place place)
{
    const zeb17_entry entry = entryAt(panel, place);
    char text[DATE_TEXT_SIZE] = "";
    char line[DATE_TEXT_SIZE + 16];
    zeb17_entry_text(panel->settings, place.group, place.index, text, sizeof text, NULL);
    snprintf(line, sizeof line, "%s%s", place.group == ZEB17_TODO ? "To do: " : "", text);
    addSwatchRow(rows, line, entry.color, entry.shown);
}

static void fillDates(const DatesPanel* panel)
{
    SwatchRows rows;
    beginSwatchRows(&rows, listOf(panel, IDC_DATES));
    for (Place place = {ZEB17_CUSTOM, 0}; place.group <= ZEB17_TODO; ++place.group)
        for (place.index = 0; place.index < groupInfo(panel, place.group).count; ++place.index)
            addDateRow(panel, &rows, place);
    endSwatchRows(&rows);
}

// A button, and the same command in the menu. A button that has the focus would keep it from the keys.
static void enableCommand(const DatesPanel* panel, int id, int isEnabled)
{
    const HWND button = GetDlgItem(panel->dialog, id);
    if (!isEnabled && button && GetFocus() == button)
        SendMessage(panel->dialog, WM_NEXTDLGCTL, (WPARAM)listOf(panel, IDC_DATES), TRUE);
    EnableWindow(button, isEnabled);
    EnableMenuItem(GetMenu(panel->dialog), (UINT)id, isEnabled ? MF_ENABLED : MF_GRAYED);
}

static void showSelected(const DatesPanel* panel)
{
    const HWND list = listOf(panel, IDC_DATES);
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

void fillDatesPanel(DatesPanel* panel)
{
    if (!panel->settings)
        return;
    panel->isFilling = 1;
    fillGroups(panel);
    fillDates(panel);
    panel->isFilling = 0;
    showSelected(panel);
}

static void changed(DatesPanel* panel)
{
    panel->isChanged = 1;
    zeb17_refresh(panel->calendar);
    fillDatesPanel(panel);
}

// ---- Commands

// A new date begins as the selected day, of every year; without one as today.
static void beginDate(const DatesPanel* panel, DateEdit* edit)
{
    const COLORREF color = groupInfo(panel, ZEB17_CUSTOM).color;
    zeb17_entry* const entry = &edit->entry;
    zeb17_date day = {1, 1, 1};
    int isSelected = 0;
    int weekday = 1;
    zeb17_get_date(panel->calendar, &day, &isSelected);
    if (!isSelected)
        zeb17_today(&day);
    zeb17_weekday(&day, &weekday);
    edit->isNew = 1;
    edit->group = ZEB17_CUSTOM;
    entry->size = sizeof *entry;
    entry->shown = 1;
    entry->color = color == ZEB17_MIXED_COLORS ? groupColors[ZEB17_CUSTOM] : color;
    entry->rule = ZEB17_DAY;
    entry->day = day.day;
    entry->month = day.month;
    entry->weekday = entry->near_weekday = weekday;
}

static void addDate(DatesPanel* panel)
{
    DateEdit edit = {0};
    Place place;
    beginDate(panel, &edit);
    if (!editDate(panel->dialog, &edit))
        return;
    place.group = edit.group;
    if (zeb17_entry_add(panel->settings, place.group, &edit.entry, edit.text, &place.index) != ZEB17_OK)
        return;
    changed(panel);
    selectRow(listOf(panel, IDC_DATES), rowOf(panel, place));
}

static void changeDate(DatesPanel* panel)
{
    const int row = selectedRow(listOf(panel, IDC_DATES));
    if (row < 0)
        return;
    const Place place = placeOf(panel, row);
    DateEdit edit = {0};
    edit.group = place.group;
    edit.entry = entryAt(panel, place);
    zeb17_entry_text(panel->settings, place.group, place.index, edit.text, sizeof edit.text, NULL);
    if (editDate(panel->dialog, &edit) &&
        zeb17_entry_set(panel->settings, place.group, place.index, &edit.entry, edit.text) == ZEB17_OK)
        changed(panel);
}

static void deleteDate(DatesPanel* panel)
{
    const int row = selectedRow(listOf(panel, IDC_DATES));
    const Place place = placeOf(panel, row);
    if (row >= 0 && zeb17_entry_delete(panel->settings, place.group, place.index) == ZEB17_OK)
        changed(panel);
}

static void chooseGroupColor(DatesPanel* panel)
{
    const int group = selectedRow(listOf(panel, IDC_GROUPS));
    if (group < 0)
        return;
    uint32_t color = colorOfGroup(panel, group);
    if (chooseColor(panel->dialog, &color) &&
        zeb17_group_set_color(panel->settings, group, color) == ZEB17_OK)
        changed(panel);
}

int saveDates(DatesPanel* panel)
{
    char why[FAILURE_SIZE];
    const int result = zeb17_settings_save(panel->settings);
    if (result == ZEB17_OK) {
        panel->isChanged = 0;
        showSelected(panel);
        return 1;
    }
    failureWords(why, result);
    tellFailure(panel->dialog, "Your dates could not be saved.", why);
    return 0;
}

static void save(DatesPanel* panel)
{
    saveDates(panel);
}

// Enter, or a double click, in a list.
static void activate(DatesPanel* panel)
{
    const HWND focus = GetFocus();
    if (focus == listOf(panel, IDC_DATES))
        changeDate(panel);
    else if (focus == listOf(panel, IDC_GROUPS))
        chooseGroupColor(panel);
}

static const struct
{
    int id;
    void (*run)(DatesPanel* panel);
} commands[] = {
    {IDM_ADD, addDate}, {IDM_EDIT, changeDate}, {IDM_DELETE, deleteDate}, {IDM_GROUP_COLOR, chooseGroupColor},
    {IDM_SAVE, save},   {IDOK, activate},
};

int runDatesCommand(DatesPanel* panel, int id)
{
    for (int i = 0; i < COUNT_OF(commands); ++i)
        if (commands[i].id == id) {
            if (panel->settings)
                commands[i].run(panel);
            return 1;
        }
    return 0;
}

// ---- The lists

static void showRow(DatesPanel* panel, int list, int row)
{
    const int isShown = ListView_GetCheckState(listOf(panel, list), row) != 0;
    if (list == IDC_GROUPS)
        zeb17_group_set_shown(panel->settings, row, isShown);
    else {
        const Place place = placeOf(panel, row);
        zeb17_entry entry = entryAt(panel, place);
        entry.shown = isShown;
        zeb17_entry_set(panel->settings, place.group, place.index, &entry, NULL);
    }
    changed(panel);
}

static void followItem(DatesPanel* panel, const NMLISTVIEW* item)
{
    const UINT changes = item->uNewState ^ item->uOldState;
    if (panel->isFilling || !(item->uChanged & LVIF_STATE))
        return;
    if (item->iItem >= 0 && (changes & LVIS_STATEIMAGEMASK))
        showRow(panel, (int)item->hdr.idFrom, item->iItem);
    else if (changes & LVIS_SELECTED)
        showSelected(panel);
}

void notifyDatesPanel(DatesPanel* panel, const NMHDR* header)
{
    if (!panel->settings)
        return;
    switch (header->code) {
    case LVN_ITEMCHANGED:
        followItem(panel, (const NMLISTVIEW*)header);
        break;
    case LVN_KEYDOWN:
        if (header->idFrom == IDC_DATES && ((const NMLVKEYDOWN*)header)->wVKey == VK_DELETE)
            deleteDate(panel);
        break;
    case NM_DBLCLK:
        activate(panel);
        break;
    default:
        break;
    }
}

// White would not be seen on the white grid: groups that were never given a colour get one.
static void giveColors(const DatesPanel* panel)
{
    for (int group = 0; group < GROUP_COUNT; ++group)
        if (groupInfo(panel, group).color == white)
            zeb17_group_set_color(panel->settings, group, groupColors[group]);
    zeb17_refresh(panel->calendar);
}

void startDatesPanel(DatesPanel* panel, HWND dialog, HWND calendar, int isReadable)
{
    static const int ids[] = {IDC_GROUPS, IDC_DATES,  IDM_ADD, IDM_GROUP_COLOR,
                              IDM_EDIT,   IDM_DELETE, IDM_SAVE};
    panel->dialog = dialog;
    panel->calendar = calendar;
    startSwatchList(listOf(panel, IDC_GROUPS));
    startSwatchList(listOf(panel, IDC_DATES));
    if (isReadable)
        zeb17_control_settings(calendar, &panel->settings);
    for (int i = 0; i < COUNT_OF(ids); ++i)
        enableCommand(panel, ids[i], isReadable);
    if (!isReadable)
        return;
    giveColors(panel);
    fillDatesPanel(panel);
    selectRow(listOf(panel, IDC_GROUPS), 0);
}
