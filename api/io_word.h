#ifndef API_IO_WORD_H
#define API_IO_WORD_H

#include "qorin/enumerations.h"

/// The words in which I/O modules hold their channels, of the control box and of tool flanges alike.
namespace qorin_api
{
/// Bit `number` of an I/O word, 0 or 1.
[[nodiscard]] inline unsigned int bit(unsigned int word, unsigned int number)
{
    return word >> number & 1;
}

/// What a bit of an analog mode word says.
[[nodiscard]] inline QORIN_ANALOG_IO_MODE analog_mode(unsigned int is_current)
{
    return is_current != 0 ? QORIN_ANALOG_IO_MODE_CURRENT : QORIN_ANALOG_IO_MODE_VOLTAGE;
}
} // namespace qorin_api

#endif
