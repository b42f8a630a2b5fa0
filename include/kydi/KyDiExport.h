// Export macro of the kydi library. The library is built with KYDI_EXPORTS;
// every other user of these headers imports.
#pragma once

#if defined(_WIN32)
#if defined(KYDI_EXPORTS)
#define KYDI_API __declspec(dllexport)
#else
#define KYDI_API __declspec(dllimport)
#endif
#else
#define KYDI_API __attribute__((visibility("default")))
#endif
