#pragma once

#include <QtCore/qglobal.h>

/// Marks what hosts of the library may use.
#if defined(OVK_LIBRARY)
#    define OVK_EXPORT Q_DECL_EXPORT
#else
#    define OVK_EXPORT Q_DECL_IMPORT
#endif

/// Marks internal classes that the tests reach; empty in a build without tests.
#if defined(OVK_BUILD_TESTS)
#    define OVK_TEST_EXPORT OVK_EXPORT
#else
#    define OVK_TEST_EXPORT
#endif
