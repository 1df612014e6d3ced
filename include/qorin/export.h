/**
 * @file export.h
 * Linkage and visibility of the interface.
 */
#ifndef QORIN_EXPORT_H
#define QORIN_EXPORT_H

#if defined(QORIN_API_BUILD)
#define QORIN_API __attribute__((visibility("default")))
#else
#define QORIN_API
#endif

#ifdef __cplusplus
#define QORIN_API_C_BEGIN                                                                                              \
    extern "C"                                                                                                         \
    {
#define QORIN_API_C_END }
/** Every enumeration is 32 bits wide and unsigned, in both languages. */
#define QORIN_ENUM_BASE : unsigned int
#else
#define QORIN_API_C_BEGIN
#define QORIN_API_C_END
#define QORIN_ENUM_BASE
#endif

#endif
