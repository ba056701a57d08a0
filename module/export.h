// What the module publishes.
#pragma once

/// Marks the few names that the module exports. Everything else in it is hidden.
#if defined(_WIN32)
#define TC_API __declspec(dllexport)
#else
#define TC_API __attribute__((visibility("default")))
#endif
