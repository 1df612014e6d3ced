#ifndef SIMULATOR_CONTROL_BOX_OPTIONS_H
#define SIMULATOR_CONTROL_BOX_OPTIONS_H

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "protocol/rpc_record.h"
#include "simulator/links/fault_plan.h"
#include "simulator/log.h"

namespace cbox_simulator
{
struct control_box_options
{
    std::string address = "127.0.0.1"; ///< IPv4 address to listen on
    std::uint16_t port = protocol::control_box_port;
    double cycle = 1;                                     ///< control cycle in milliseconds, 0.1 to 100
    double rate = 1000;                                   ///< frames a second, above 0 and up to 10000
    std::string version_text = "QORIN.v3.008.000.004_U2"; ///< at most 31 characters
    std::string kinematics = {};                          ///< directory of modules for robots of its user's own
    std::string scene = {};                               ///< file of the cell to start as, see scene/scene.h
    std::optional<std::uint16_t> control_port = {};       ///< of the control channel; none: there is none
    double noise = 0;                                     ///< on measured values, as a share of a usual device's
    fault_plan faults = {};                               ///< what is to go wrong on the links
    std::uint64_t seed = 1;                               ///< of all chance in the box
    log_sink log = {};                                    ///< none: the box is silent
    log_level level = log_level::info;
    std::function<void()> on_exit = {}; ///< see control_box
};
} // namespace cbox_simulator

#endif
