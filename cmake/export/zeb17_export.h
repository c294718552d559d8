// Marks what the library shows to its hosts.
#pragma once

#if defined(_WIN32)
#if defined(ZEB17_BUILDING)
#define ZEB17_EXPORT __declspec(dllexport)
#else
#define ZEB17_EXPORT __declspec(dllimport)
#endif
#else
#define ZEB17_EXPORT __attribute__((visibility("default")))
#endif
