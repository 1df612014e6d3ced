#include "simulator/frame/frame_renderer.h"

#include <cstring>

#include "simulator/frame/cbox_frame.h"
#include "simulator/frame/frame_text.h"
#include "simulator/frame/robot_frame.h"

namespace cbox_simulator
{
namespace
{
using protocol::shared_data_t;

void render_system(const box_model& model, shared_data_t& frame)
{
    const bool created = model.system().has_value();
    put_text(frame.control_sw_version, model.version_text());
    frame.cbox_name = created ? model.system()->model : QORIN_CBOX_MODEL_NONE;
    frame.control_cycle_us = model.control_cycle_us();
}

void render_idle_safety(shared_data_t& frame)
{
    for (std::size_t robot = 0; robot < protocol::robot_limit; ++robot)
    {
        for (std::size_t plane = 0; plane < protocol::safety_plane_limit; ++plane)
            frame.safety_planes[robot].plane_switch[plane] = QORIN_SWITCH_OFF;
        frame.safety_shapes[robot].tcp_bounding_shape_switch = QORIN_SWITCH_OFF;
        frame.safety_limit_switch[robot] = QORIN_SWITCH_OFF;
    }
}

void render_idle_peripherals(shared_data_t& frame)
{
    for (std::size_t robot = 0; robot < protocol::robot_limit; ++robot)
    {
        protocol::record_at<protocol::ft_sensor_data_t>(frame, robot).sensor_switch = QORIN_SWITCH_OFF;
        protocol::record_at<protocol::tool_module_data_t>(frame, robot).power_voltage =
            QORIN_TOOL_POWER_VOLTAGE_OPTION_0;
        frame.ext_ft_sensors[robot].sensor_switch = QORIN_SWITCH_OFF;
    }
}
} // namespace

void render_frame(const box_model& model, shared_data_t& frame)
{
    std::memset(&frame, 0, sizeof frame);
    render_system(model, frame);
    render_cbox(model.cbox(), frame);
    render_idle_safety(frame);
    render_idle_peripherals(frame);
    render_robots(model.robots(), frame);
}
} // namespace cbox_simulator
