/**
 * @file export.h
 * Linkage and visibility of the interface.
 */
#ifndef QORIN_EXPORT_H
#define QORIN_EXPORT_H

/** Makes a function visible outside the library, when that is what is built; of no effect for its users. */
#if defined(QORIN_API_BUILD)
#define QORIN_API __attribute__((visibility("default")))
#else
#define QORIN_API
#endif

#ifdef __cplusplus
/** Begins declarations with C linkage, in both languages. */
#define QORIN_API_C_BEGIN                                                                                              \
    extern "C"                                                                                                         \
    {
/** Ends what QORIN_API_C_BEGIN began. */
#define QORIN_API_C_END }
/** Every enumeration is 32 bits wide and unsigned, in both languages. */
#define QORIN_ENUM_BASE : unsigned int
#else
#define QORIN_API_C_BEGIN
#define QORIN_API_C_END
#define QORIN_ENUM_BASE
#endif

#endif
