// Export macro of the kyplatform library. The library is built with
// KYPLATFORM_EXPORTS; every other user of these headers imports.
#pragma once

#if defined(_WIN32)
#if defined(KYPLATFORM_EXPORTS)
#define KYPLATFORM_API __declspec(dllexport)
#else
#define KYPLATFORM_API __declspec(dllimport)
#endif
#else
#define KYPLATFORM_API __attribute__((visibility("default")))
#endif
