// Export macro of the Qt adapters. The library is built with KYDIQT_EXPORTS;
// every other user of these headers imports.
#pragma once

#if defined(_WIN32)
#if defined(KYDIQT_EXPORTS)
#define KYDIQT_API __declspec(dllexport)
#else
#define KYDIQT_API __declspec(dllimport)
#endif
#else
#define KYDIQT_API __attribute__((visibility("default")))
#endif
