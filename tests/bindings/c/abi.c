// What a built host relies on: sizes, offsets and numbers of zeb17.h, which stay within a major version.
#include <zeb17.h>

#define HOLDS(name, condition) typedef char name[(condition) ? 1 : -1]
#define AT(type, field, offset) HOLDS(type##_##field, offsetof(type, field) == (offset))

HOLDS(date_size, sizeof(zeb17_date) == 12);
AT(zeb17_date, month, 4);
AT(zeb17_date, day, 8);

HOLDS(face_size, sizeof(zeb17_face) == 12);
HOLDS(shading_size, sizeof(zeb17_shading) == 52);
AT(zeb17_shading, normal, 4);
AT(zeb17_shading, hot, 16);
AT(zeb17_shading, pressed, 28);
AT(zeb17_shading, disabled, 40);

HOLDS(notification_size, sizeof(zeb17_notification) == 64);
AT(zeb17_notification, size, 24);
AT(zeb17_notification, by_press, 28);
AT(zeb17_notification, selected, 32);
AT(zeb17_notification, date, 36);
AT(zeb17_notification, end, 48);

HOLDS(group_info_size, sizeof(zeb17_group_info) == 16);
AT(zeb17_group_info, count, 4);
AT(zeb17_group_info, shown, 8);
AT(zeb17_group_info, color, 12);

HOLDS(entry_size, sizeof(zeb17_entry) == 52);
AT(zeb17_entry, id, 4);
AT(zeb17_entry, shown, 8);
AT(zeb17_entry, color, 12);
AT(zeb17_entry, rule, 16);
AT(zeb17_entry, day, 20);
AT(zeb17_entry, month, 24);
AT(zeb17_entry, occurrence, 28);
AT(zeb17_entry, weekday, 32);
AT(zeb17_entry, near_weekday, 36);
AT(zeb17_entry, working_day, 40);
AT(zeb17_entry, years, 44);
AT(zeb17_entry, year, 48);

HOLDS(results, ZEB17_OK == 0 && ZEB17_BAD_HANDLE == 3 && ZEB17_SMALL_BUFFER == 8 && ZEB17_FILE_FAILED == 12);
HOLDS(last_result, ZEB17_FAILED == 17);
HOLDS(flags,
      ZEB17_SPECIAL_DATES == 1 && ZEB17_OPTIONS == 4 && ZEB17_WANT_ESC == 0x80 && ZEB17_ALL_FLAGS == 0xFF);
HOLDS(events, ZEB17_SELCHANGE == 0 && ZEB17_NODATE == 1 && ZEB17_ENTERKEY == 2 && ZEB17_RANGE == 5);
HOLDS(groups, ZEB17_US == 0 && ZEB17_CUSTOM == 3 && ZEB17_TODO == 4);
HOLDS(rules, ZEB17_CALCULATED == 0 && ZEB17_DAY == 1 && ZEB17_NEAR_WEEKDAY == 4 && ZEB17_ONCE == 6);
HOLDS(forms, ZEB17_LONG == 0 && ZEB17_SHORT == 1 && ZEB17_MONTHS == 0 && ZEB17_YEARS == 1);
