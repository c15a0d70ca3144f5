#pragma once

/// Marks a class or function as part of the library's exported interface.
/// Everything else is hidden (shared library) or simply internal (static library, `ZEB_STATIC`).
#if defined(ZEB_STATIC)
#define ZEB_EXPORT
#elif defined(_WIN32)
#if defined(ZEB_BUILDING_LIBRARY)
#define ZEB_EXPORT __declspec(dllexport)
#else
#define ZEB_EXPORT __declspec(dllimport)
#endif
#else
#define ZEB_EXPORT __attribute__((visibility("default")))
#endif
