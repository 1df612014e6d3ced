#ifndef BENCHMARKS_SIMULATOR_TO_AND_FRO_H
#define BENCHMARKS_SIMULATOR_TO_AND_FRO_H

#include <array>
#include <cstdint>
#include <stdexcept>

#include "simulator/model/box_model.h"

namespace benchmark_support
{
/// Keeps two robots of a box going to and fro on TCP paths, each turning its tool on the way.
class to_and_fro
{
public:
    explicit to_and_fro(cbox_simulator::box_model& model) : model_(model)
    {
        model_.create_system(client, {QORIN_CBOX_MODEL_3GEN_SIM, 2});
        model_.take_control(client);
        for (auto& home : homes_)
        {
            std::uint32_t id = 0;
            model_.create_robot(QORIN_ROBOT_MODEL_ARM_A, id);
            model_.robots().set_servo(id, QORIN_SWITCH_ON);
            home = model_.robots().find(id)->tcp_pose();
        }
    }

    /// A second robot takes an arc where the first one takes a line.
    void move_when_idle()
    {
        if (!model_.is_idle())
            return;
        static_cast<void>(model_.events().take());
        there_ = !there_;
        for (std::uint32_t id = 0; id < homes_.size(); ++id)
            move(id, there_ ? 80 : -80);
    }

private:
    static constexpr cbox_simulator::client_id client = 1;

    void move(std::uint32_t id, double aside)
    {
        const cbox_simulator::pose& home = homes_[id];
        cbox_simulator::motion_command command(cbox_simulator::motion_kind::tcp);
        command.robot_id = id;
        auto& path = *command.find<cbox_simulator::tcp_path>();
        path.interpolator = id == 0 ? QORIN_INTERPOLATOR_LINEAR : QORIN_INTERPOLATOR_CIRCULAR;
        path.position_mid = {home[0] + 30, home[1], home[2] - 20};
        path.position_end = {home[0], home[1] + aside, home[2] - 40};
        path.orientation_end = {home[3], home[4] + aside / 8, home[5]};
        if (model_.motions().run_now(command) != QORIN_API_RESULT_OK)
            throw std::runtime_error("the robots of the benchmark refuse to move");
    }

    cbox_simulator::box_model& model_;
    std::array<cbox_simulator::pose, 2> homes_{};
    bool there_ = false;
};
} // namespace benchmark_support

#endif
