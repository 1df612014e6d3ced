#include <functional>
#include <random>

#include "tests/api/robot_frame.h"

// Frames that no control box of sound mind sends: every getter answers something and touches nothing but its outputs.
// What it touches shows under AddressSanitizer.
namespace
{
using namespace robot_frame;

/// At the ends of what is bounded, of the stretches of the frame, and of the numbers.
constexpr std::array<unsigned int, 20> edges = {0,  1,  2,  3,  4,  5,  6,  8,  9,          15,
                                                16, 31, 33, 35, 36, 41, 64, 74, 0x7FFFFFFF, 0xFFFFFFFF};

unsigned int edge(std::mt19937& random)
{
    return edges[std::uniform_int_distribution<std::size_t>(0, edges.size() - 1)(random)];
}

void look_at(QORIN_API_RESULT result)
{
    EXPECT_GE(result, QORIN_API_RESULT_OK);
}

void look_at(const char* text)
{
    EXPECT_LE(text == nullptr ? 0 : std::strlen(text), frame_size);
}

using getter_call = std::function<void(std::mt19937&)>;

/// Calls with numbers from the edges and outputs that are exactly as long as the longest is.
template <class Result, class... Params>
getter_call caller(Result (*getter)(Params...))
{
    return [getter](std::mt19937& random)
    {
        std::vector<bytes> outputs;
        [[maybe_unused]] const auto argument = [&]<class Param>(Param*) -> Param
        {
            if constexpr (std::is_pointer_v<Param>)
                return reinterpret_cast<Param>(outputs.emplace_back(64).data());
            else
                return static_cast<Param>(edge(random));
        };
        outputs.reserve(sizeof...(Params));
        const std::tuple<Params...> arguments{argument(static_cast<Params*>(nullptr))...};
        look_at(std::apply(getter, arguments));
    };
}

const std::vector<getter_call>& all_getters()
{
    static const std::vector<getter_call> all = {
#define GETTER(name) caller(name),
#include "status_getters.inc" // made from the public headers
#undef GETTER
    };
    return all;
}

void call_all(std::mt19937& random)
{
    for (const getter_call& getter : all_getters())
        for (int i = 0; i < 20; ++i)
            getter(random);
}

TEST_F(robot_getters, read_noise_within_the_frame)
{
    make_robots_present();
    ASSERT_GT(all_getters().size(), 140u);
    for (unsigned int seed = 1; seed <= 60; ++seed)
    {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        for (std::size_t offset = 0; offset < frame_size; offset += 4)
            put(offset, seed % 2 == 0 ? edge(random) : static_cast<unsigned int>(random()));
        call_all(random);
    }
}

TEST_F(robot_getters, read_frames_that_slipped_within_the_frame)
{
    make_robots_present();
    const bytes whole = bytes_at(0, frame_size);
    for (const std::size_t slip : {1u, 2u, 3u, 4u, 7u, 100u, 2604u, 29727u})
    {
        SCOPED_TRACE(slip);
        std::rotate_copy(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(slip), whole.end(), mirror());
        std::mt19937 random(static_cast<unsigned int>(slip));
        call_all(random);
    }
}
} // namespace
