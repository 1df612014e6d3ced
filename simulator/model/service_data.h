#ifndef SIMULATOR_MODEL_SERVICE_DATA_H
#define SIMULATOR_MODEL_SERVICE_DATA_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>

#include "qorin/result.h"
#include "simulator/model/ecat_master.h"

namespace cbox_simulator
{
/**
 * The service data objects of the modules on the EtherCAT network, for testers.
 *
 * Four numbers name an object, whatever the module takes them for. An object has the value that was written, and none
 * before. Owned by the model, as is the master.
 */
class service_data
{
public:
    static constexpr std::size_t most_objects = 4096;

    explicit service_data(const ecat_master& master) : master_(master) {}

    /// Without the network it is QORIN_API_RESULT_ROBOT_ECAT_NOT_CONNECTED, for an object too many
    /// QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE.
    QORIN_API_RESULT write(std::uint32_t number_1, std::uint32_t number_2, std::uint32_t number_3,
                           std::uint32_t number_4, std::uint32_t value)
    {
        if (!connected())
            return QORIN_API_RESULT_ROBOT_ECAT_NOT_CONNECTED;
        const object_name name{number_1, number_2, number_3, number_4};
        if (values_.size() == most_objects && !values_.contains(name))
            return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
        values_[name] = value;
        return QORIN_API_RESULT_OK;
    }

    /// Without the network it is QORIN_API_RESULT_ERROR_SDO_READ_NO_RESPONSE, for an object that was never written
    /// QORIN_API_RESULT_ERROR_SDO_READ_FAILURE.
    QORIN_API_RESULT read(std::uint32_t number_1, std::uint32_t number_2, std::uint32_t number_3,
                          std::uint32_t number_4, std::uint32_t& value) const
    {
        if (!connected())
            return QORIN_API_RESULT_ERROR_SDO_READ_NO_RESPONSE;
        const auto found = values_.find({number_1, number_2, number_3, number_4});
        if (found == values_.end())
            return QORIN_API_RESULT_ERROR_SDO_READ_FAILURE;
        value = found->second;
        return QORIN_API_RESULT_OK;
    }

private:
    using object_name = std::array<std::uint32_t, 4>;

    [[nodiscard]] bool connected() const { return master_.ecat_connection_state() == QORIN_ECAT_CONN_STATE_CONNECTED; }

    const ecat_master& master_;
    std::map<object_name, std::uint32_t> values_;
};
} // namespace cbox_simulator

#endif
