#pragma once

#define IDR_TEST_MENU 140
#define ID_TEST_FIRST 41001
#define ID_TEST_SECOND 41002
