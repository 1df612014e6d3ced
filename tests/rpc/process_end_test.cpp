// Programs that end while the library is busy: each runs in a process of its own, with SIGPIPE at its default.
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <set>
#include <string>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "qorin/cbox.h"
#include "qorin/event.h"
#include "qorin/robot.h"
#include "qorin/robot_conversion.h"
#include "qorin/robot_status.h"
#include "qorin/system.h"
#include "rpc/cbox_registry.h"
#include "rpc/qorin_rpc_client.h"
#include "rpc/qorin_rpc_event.h"
#include "tests/rpc/connected_box.h"
#include "tests/support/installation.h"

namespace
{
using namespace std::chrono_literals;
using test_support::connected_box;
using test_support::eventually;
using test_support::installation;
using test_support::own_address;
using test_support::reply_with;
using test_support::scripted_cbox;

constexpr int wrong = 9; ///< status of a program that saw what must not be

void expect(bool holds)
{
    if (!holds)
        _exit(wrong);
}

/// A program with its own control box, which serves until the process is gone, and one robot.
struct program
{
    enum class box_kind
    {
        healthy,
        silent
    };

    explicit program(box_kind kind = box_kind::healthy)
    {
        std::signal(SIGPIPE, SIG_DFL);
        test_support::write_file(
            place.config_path(),
            "[client]\nlog_save_path=./log\nlog_print_out=off\nkinematics_path=" QORIN_KINEMATICS_DIRECTORY
            "\n[server]\nlog_trans=off\n[common]\ntransfer_protocol=tcp\n");
        place.start_logging();
        expect(qorin_api_rpc::qorin_api_internal_rpc_system_create(own_address().c_str(), 7700, &id) ==
               QORIN_API_RESULT_OK);
        if (kind == box_kind::healthy)
            box.always_reply(reply_with(QORIN_API_RESULT_OK));
    }

    /// From here on the end of the process has a module to close.
    void create_robot() const
    {
        const char text[128] = "";
        expect(qorin_rpc_robot_create(id, QORIN_ROBOT_MODEL_ARM_A, text, 0, nullptr) == QORIN_API_RESULT_OK);
    }

    const installation& place = *new installation;
    scripted_cbox& box = *new scripted_cbox(own_address());
    unsigned int id = 0;
};

/// The program of this process.
program* g_program = nullptr;

program& start(program::box_kind kind = program::box_kind::healthy)
{
    g_program = new program(kind);
    return *g_program;
}

/// Runs something without end, twice at once, and lets it get going.
template <class Work>
void keep_at(Work work)
{
    std::atomic<int>& done = *new std::atomic<int>(0);
    for (int i = 0; i < 2; ++i)
        std::thread(
            [work, &done]
            {
                for (;; ++done)
                    work();
            })
            .detach();
    while (done < 10)
        std::this_thread::sleep_for(1ms);
}

void keep_commanding()
{
    keep_at([] { expect(qorin_rpc_system_reset(g_program->id) == QORIN_API_RESULT_OK); });
}

void keep_waiting_for_events()
{
    keep_at(
        []
        {
            char occurred = 0;
            expect(qorin_rpc_system_wait_event_group(g_program->id, 1, 5, 1, &occurred) == QORIN_API_RESULT_OK);
        });
}

/// Frames of a robot and events without end.
void keep_sending()
{
    auto& frame = *new protocol::shared_data_t;
    std::memset(&frame, 0, sizeof(frame));
    frame.robot_count = 1;
    frame.robots[0].number_of_joints = 6;
    std::thread(
        [&frame]
        {
            for (savrent::cc::val_obj::event_info event = {};; std::this_thread::sleep_for(1ms))
            {
                g_program->box.send_frame(frame);
                g_program->box.send_event(event);
            }
        })
        .detach();
    double angle = 0;
    expect(eventually(
        [&] { return qorin_rpc_robot_joint_angle_actual_get(g_program->id, 0, 5, &angle) == QORIN_API_RESULT_OK; }));
}

void keep_getting()
{
    keep_at(
        []
        {
            const double joints[6] = {0, 0, 0, 0, 90, 0};
            double values[12] = {};
            expect(qorin_rpc_robot_joint_angle_actual_get(g_program->id, 0, 5, values) == QORIN_API_RESULT_OK);
            const QORIN_API_RESULT result = qorin_rpc_robot_util_joint_angle_to_pose_convert(
                g_program->id, 0, QORIN_POSE_TYPE_FLANGE, joints, values, values + 3);
            expect(result == QORIN_API_RESULT_OK || result == QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID);
        });
}

bool g_is_late = false;

/// What handlers and static objects may do while the process ends.
void expect_service()
{
    if (!g_is_late)
        return;
    expect(qorin_rpc_system_control_release(g_program->id) == QORIN_API_RESULT_OK);
    unsigned int value = 0;
    expect(qorin_rpc_cbox_io_digital_input_get(g_program->id, 0, &value) == QORIN_API_RESULT_OK);
}

struct late_guard
{
    ~late_guard() { expect_service(); }
};
late_guard g_guard;

void end_late(bool has_robot)
{
    g_is_late = true;
    static late_guard before;
    std::atexit(expect_service);
    start();
    if (has_robot)
        g_program->create_robot();
    static late_guard after;
    std::atexit(expect_service);
}

void command_from_a_callback(unsigned int, unsigned int, unsigned int, int, int, int, int, int)
{
    qorin_rpc_system_reset(g_program->id);
}

void exit_from_a_callback(unsigned int, unsigned int, unsigned int, int, int, int, int, int)
{
    std::exit(7);
}

struct ending
{
    const char* name;
    int status;
    int times;
    void (*work)();

    friend void PrintTo(const ending& each, std::ostream* out) { *out << each.name; }
};

const ending endings[] = {
    {"returns_beside_commands", 0, 50,
     []
     {
         start();
         keep_commanding();
     }},
    {"returns_beside_getters", 0, 50,
     []
     {
         start().create_robot();
         keep_sending();
         keep_getting();
     }},
    {"returns_beside_waits", 0, 50,
     []
     {
         start();
         qorin_rpc_system_event_callback_add(0,
                                             [](unsigned int, unsigned int, unsigned int, int, int, int, int, int) {});
         keep_waiting_for_events();
         std::thread(
             []
             {
                 for (;;)
                     g_program->box.send_event({});
             })
             .detach();
     }},
    {"commands_to_its_very_end", 0, 1, [] { end_late(false); }},
    {"commands_to_its_very_end_with_a_robot", 0, 1,
     []
     {
         end_late(true);
         std::atexit(
             []
             {
                 double table[4][16] = {};
                 expect(qorin_rpc_robot_kinematics_dh_parameter_set(0, 0, 6, table[0], table[1], table[2], table[3]) ==
                        QORIN_API_RESULT_OK);
             });
     }},
    {"returns_beside_a_silent_box", 0, 1,
     []
     {
         start(program::box_kind::silent);
         // Not by the exported call: it takes the call lock ahead of the dispatcher's, and the callback the other way
         // round.
         qorin_api_rpc::get_cbox(0)->get_event()->event_callback_add(command_from_a_callback);
         std::thread([] { (void)qorin_rpc_system_reset(0); }).detach();
         expect(g_program->box.wait_for_requests(1));
         g_program->box.send_event({});
         std::this_thread::sleep_for(50ms); // lets the callback wait for the call lock
     }},
    {"exits_from_a_callback", 7, 10,
     []
     {
         start().create_robot();
         keep_sending();
         keep_commanding();
         keep_getting();
         qorin_rpc_system_event_callback_add(0, exit_from_a_callback);
         std::this_thread::sleep_for(20s);
     }},
    {"exits_from_another_thread", 7, 10,
     []
     {
         start().create_robot();
         keep_sending();
         keep_getting();
         std::thread([] { std::exit(7); }).detach();
         for (;;)
             expect(qorin_rpc_system_reset(0) == QORIN_API_RESULT_OK);
     }},
    {"exits_quickly", 7, 10,
     []
     {
         start().create_robot();
         keep_sending();
         keep_commanding();
         std::quick_exit(7);
     }},
};

/// Runs a program and lets it return from main.
TEST(process_end_child, DISABLED_program)
{
    const char* name = std::getenv("QORIN_TEST_PROGRAM");
    ASSERT_NE(nullptr, name) << "is started by the tests below";
    for (const ending& each : endings)
        if (std::string(name) == each.name)
            each.work();
}

pid_t run_child(const std::string& name, const installation& place)
{
    const pid_t child = fork();
    if (child == 0)
    {
        setenv("TMPDIR", place.directory().c_str(), 1);
        setenv("QORIN_TEST_PROGRAM", name.c_str(), 1);
        // The thread of a program's box is nobody's to join.
        const char* options = std::getenv("TSAN_OPTIONS");
        setenv("TSAN_OPTIONS",
               ("report_thread_leaks=0 atexit_sleep_ms=50 " + std::string(options == nullptr ? "" : options)).c_str(),
               1);
        execl("/proc/self/exe", "process_end", "--gtest_filter=process_end_child.DISABLED_program",
              "--gtest_also_run_disabled_tests", "--gtest_brief=1", nullptr);
        _exit(127);
    }
    return child;
}

/// The exit status of a child that was started; minus the signal that ended it, also when it hung.
int wait_for(pid_t child)
{
    int status = 0;
    for (int i = 0; i < 6000; ++i)
    {
        if (waitpid(child, &status, WNOHANG) == child)
            return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
        usleep(10'000);
    }
    kill(child, SIGKILL);
    waitpid(child, &status, 0);
    return -SIGKILL;
}

class process_end : public testing::TestWithParam<ending>
{
};

/// As often as told, several at once.
TEST_P(process_end, is_as_the_program_wants_it)
{
    const installation place; // of all that the children leave
    constexpr int at_once = 10;
    for (int done = 0; done < GetParam().times; done += at_once)
    {
        std::set<pid_t> children;
        for (int i = 0; i < std::min(at_once, GetParam().times - done); ++i)
            children.insert(run_child(GetParam().name, place));
        for (const pid_t child : children)
            ASSERT_EQ(GetParam().status, wait_for(child)) << done;
    }
}

INSTANTIATE_TEST_SUITE_P(program, process_end, testing::ValuesIn(endings),
                         [](const auto& tested) { return std::string(tested.param.name); });

/// No thread but this one is running, hence none is inside an allocator: a sanitizer's is not made ready for a fork,
/// and a child would wait for its lock for ever.
bool others_sleep()
{
    return std::ranges::all_of(std::filesystem::directory_iterator("/proc/self/task"),
                               [](const auto& task)
                               {
                                   if (task.path().filename() == std::to_string(gettid()))
                                       return true;
                                   const std::string stat = test_support::read_file(task.path() / "stat");
                                   return stat.substr(stat.rfind(')')).starts_with(") S");
                               });
}

TEST(forked_child, leaves_the_links_of_its_parent_alone)
{
    connected_box box;
    ASSERT_TRUE(eventually(others_sleep));
    const pid_t child = fork();
    if (child == 0)
        std::exit(0);
    ASSERT_EQ(0, wait_for(child));

    box.will_reply(reply_with(QORIN_API_RESULT_OK));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_reset(box.id));
    box.send_event({});
    protocol::shared_data_t frame;
    std::memset(&frame, 0xFF, sizeof(frame));
    box.send_frame(frame);
    unsigned int value = 0;
    EXPECT_TRUE(eventually(
        [&] { return qorin_rpc_cbox_io_digital_input_get(box.id, 0, &value) == QORIN_API_RESULT_OK && value == 1; }));
    char occurred = 0;
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_wait_event_group(box.id, 0, 5000, 1, &occurred));
    EXPECT_EQ(1, occurred);
}
} // namespace
