#ifndef SIMULATOR_MODEL_LOCAL_MODBUS_AREA_H
#define SIMULATOR_MODEL_LOCAL_MODBUS_AREA_H

#include <cstdint>

#include "qorin/result.h"
#include "simulator/model/modbus_image.h"

namespace cbox_simulator
{
/**
 * The bits and registers that the box offers to Modbus, by first address and count.
 *
 * Of bits, what is not 0 is 1. No element, one beyond the last address, or more to set than a command carries (128
 * bits, 64 registers) is QORIN_API_RESULT_MODBUS_INPUT_ERROR. Reading many tells the first four bytes: four bits, or
 * two registers.
 */
class local_modbus_area
{
public:
    QORIN_API_RESULT set_bits(std::uint32_t address, std::uint32_t count, const block_of<std::uint8_t>& values)
    {
        return set(bits_, address, count, values);
    }

    QORIN_API_RESULT set_registers(std::uint32_t address, std::uint32_t count, const block_of<std::uint16_t>& values)
    {
        return set(registers_, address, count, values);
    }

    QORIN_API_RESULT get_bits(std::uint32_t address, std::uint32_t count, std::uint32_t& first_bytes) const
    {
        return get(bits_, address, count, first_bytes);
    }

    QORIN_API_RESULT get_registers(std::uint32_t address, std::uint32_t count, std::uint32_t& first_bytes) const
    {
        return get(registers_, address, count, first_bytes);
    }

private:
    template <class Element>
    static QORIN_API_RESULT set(modbus_image<Element>& image, std::uint32_t address, std::uint32_t count,
                                const block_of<Element>& values)
    {
        if (count > values.size() || !image.holds(address, count))
            return QORIN_API_RESULT_MODBUS_INPUT_ERROR;
        image.write(address, count, values);
        return QORIN_API_RESULT_OK;
    }

    template <class Element>
    static QORIN_API_RESULT get(const modbus_image<Element>& image, std::uint32_t address, std::uint32_t count,
                                std::uint32_t& first_bytes)
    {
        if (!image.holds(address, count))
            return QORIN_API_RESULT_MODBUS_INPUT_ERROR;
        first_bytes = image.first_bytes(address, count);
        return QORIN_API_RESULT_OK;
    }

    modbus_image<std::uint8_t> bits_{modbus_address_count};
    modbus_image<std::uint16_t> registers_{modbus_address_count};
};
} // namespace cbox_simulator

#endif
