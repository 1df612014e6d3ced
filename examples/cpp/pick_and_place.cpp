// Takes parts from one place to another: straight down and up, over in a blended way, the gripper at an output.
//
//   cpp_pick_and_place ADDRESS CONFIG [PARTS]
//
// A part may be taken when input 0 is 1; the simulated control box is told so by this program. The gripper is at
// output 0.

#include <qorin/functions.hpp>

#include "session.hpp"

namespace
{
constexpr unsigned int part_sensor = 0; // digital input
constexpr unsigned int gripper = 0;     // digital output
constexpr double depth = 100;           // millimetres from above a part down to it
constexpr double distance = 240;        // and from the one place to the other

class cell
{
public:
    cell(const qorin::cbox& box, const qorin::robot& robot) : box_(box), robot_(robot) {}

    void carry(int part)
    {
        bring_part(true);
        example::await("a part", [&] { return box_.digital_input(part_sensor).value(); });
        visit(source_, part, true);
        bring_part(false);
        visit(target_, part, false);
    }

private:
    /// Input 0 belongs to the world outside the control box; a real one needs nobody to play it.
    void bring_part(bool there) { qorin::raw::ts_cbox_io_digital_input_set(box_.id(), part_sensor, there).value(); }

    /// Up, over to a place in the rounded way, and straight down to it. The gripper follows as the arm comes to rest.
    void visit(const qorin::position& place, int part, bool closed)
    {
        const auto over = [&](const qorin::position& end)
        {
            return robot_
                .make(qorin::tcp_motion{
                    .end = end, .speed_mm_s = 400, .acceleration_mm_s2 = 1500, .blending_radius_mm = 30})
                .value();
        };
        const auto up = over(above_);
        const auto across = over(place);
        const auto down = robot_
                              .make(qorin::tcp_motion{
                                  .end = qorin::position{place.x_mm, place.y_mm, place.z_mm - depth},
                                  .speed_mm_s = 200,
                                  .acceleration_mm_s2 = 800,
                                  .output = qorin::output_on_the_way{.channel = gripper, .value = closed ? 1.0 : 0}})
                              .value();
        up.queue().value();
        across.queue().value();
        example::run(down);
        above_ = place;
        example::await("the gripper", [&] { return box_.digital_output(gripper).value() == closed; });
        const auto tcp = robot_.tcp().value();
        std::printf("part %d at %.1f %.1f %.1f, gripper %s\n", part, tcp.x_mm, tcp.y_mm, tcp.z_mm,
                    closed ? "closed" : "open");
        std::fflush(stdout);
    }

    qorin::cbox box_;
    qorin::robot robot_;
    qorin::position above_ = robot_.pose_at(example::ready).value().position();
    qorin::position source_{above_.x_mm, above_.y_mm - distance / 2, above_.z_mm};
    qorin::position target_{above_.x_mm, above_.y_mm + distance / 2, above_.z_mm};
};
} // namespace

int main(int argc, char** argv)
{
    return example::program(argc, argv, 1, "cpp_pick_and_place ADDRESS CONFIG [PARTS]",
                            [&](const qorin::cbox& box)
                            {
                                const int parts = argc > 3 ? static_cast<int>(example::number(argv[3])) : 2;
                                const auto control = example::take_control(box);
                                const auto robot = example::robot_under_power(box);
                                box.set_digital_output(gripper, false).value();
                                example::run(
                                    robot.make(qorin::joint_motion{.end = example::ready, .speed_deg_s = 90}).value());
                                cell work(box, robot);
                                for (int part = 1; part <= parts; ++part)
                                    work.carry(part);
                            });
}
