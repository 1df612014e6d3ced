#ifndef API_ROBOT_READ_H
#define API_ROBOT_READ_H

#include <cstddef>
#include <cstring>
#include <type_traits>
#include <utility>

#include "api/internal_robot_common.h"
#include "api/internal_shared_data.h"
#include "protocol/status_frame.h"
#include "qorin/result.h"

/**
 * The shapes of the local robot getters.
 *
 * A shape judges the robot, finds the record that the getter is about and reads it in place; the first result that is
 * not OK is the getter's. What to read is either a field, whose elements go to as many outputs, or a function of the
 * record, which may go on to judge an index and then returns a result of its own.
 */
namespace qorin_api
{
/// Element `index` of an array field. By bytes: the index is not bounded by the field.
template <class Record, class Element, std::size_t Size>
[[nodiscard]] Element element_of(const Record& record, Element (Record::*field)[Size], std::size_t index)
{
    Element value;
    std::memcpy(&value, reinterpret_cast<const unsigned char*>(&(record.*field)) + index * sizeof value, sizeof value);
    return value;
}

/// A field that is one element.
template <class Record, class Element>
[[nodiscard]] Element element_of(const Record& record, Element Record::*field, std::size_t /*index*/)
{
    Element value;
    std::memcpy(&value, &(record.*field), sizeof value);
    return value;
}

/// Stores all elements of a field in order, one in each output.
template <class Record, class Field, class... Outputs>
void hand_out(const Record& record, Field Record::*field, Outputs*... outputs)
{
    using element_t = std::remove_extent_t<Field>;
    static_assert(sizeof...(Outputs) * sizeof(element_t) == sizeof(Field), "an output for each element");
    static_assert(((sizeof(Outputs) == sizeof(element_t)) && ...), "outputs are as wide as elements");
    static_assert(((std::is_floating_point_v<Outputs> == std::is_floating_point_v<element_t>)&&...));

    std::size_t index = 0;
    ((*outputs = static_cast<Outputs>(element_of(record, field, index++))), ...);
}

/// Runs the function that reads a record; one without a result has read it.
template <class Read, class... Records>
QORIN_API_RESULT run(Read&& read, const Records&... records)
{
    if constexpr (std::is_void_v<std::invoke_result_t<Read, const Records&...>>)
    {
        read(records...);
        return QORIN_API_RESULT_OK;
    }
    else
        return read(records...);
}

/// Reads the frame; no robot is asked for.
template <class Read>
QORIN_API_RESULT read_frame(Read&& read)
{
    const protocol::shared_data_t* frame = qorin_internal_get_shared_data();
    return frame == nullptr ? QORIN_API_RESULT_ERROR_CBOX_ID_INVALID : run(std::forward<Read>(read), *frame);
}

/// Reads what the frame holds outside the record of a robot. The robot must be known to this process; whether the
/// control box has it is not looked at.
template <class Read>
QORIN_API_RESULT read_frame_of_robot(unsigned int robot_id, Read&& read)
{
    const QORIN_API_RESULT result = qorin_internal_robot_common_check(robot_id, nullptr);
    return result != QORIN_API_RESULT_OK ? result : read_frame(std::forward<Read>(read));
}

template <class Read>
QORIN_API_RESULT read_robot(unsigned int robot_id, Read&& read)
{
    const protocol::robot_data_t* robot = nullptr;
    const QORIN_API_RESULT result = qorin_internal_robot_common_check(robot_id, &robot);
    if (result != QORIN_API_RESULT_OK)
        return result;
    return robot == nullptr ? QORIN_API_RESULT_ERROR_CBOX_ID_INVALID : run(std::forward<Read>(read), *robot);
}

template <class Field, class... Outputs>
QORIN_API_RESULT read_robot(unsigned int robot_id, Field protocol::robot_data_t::*field, Outputs*... outputs)
{
    return read_robot(robot_id, [&](const protocol::robot_data_t& robot) { hand_out(robot, field, outputs...); });
}

/// The same for getters that judge `joint`, or what stands in its place, against the robot's number of joints.
template <class Read>
QORIN_API_RESULT read_robot_with_joint(unsigned int robot_id, unsigned int joint, Read&& read)
{
    const protocol::robot_data_t* robot = nullptr;
    const QORIN_API_RESULT result = qorin_internal_robot_common_check_with_joint(robot_id, joint, &robot);
    if (result != QORIN_API_RESULT_OK)
        return result;
    return robot == nullptr ? QORIN_API_RESULT_ERROR_CBOX_ID_INVALID : run(std::forward<Read>(read), *robot);
}

/// One element of a field that has an element per joint.
template <class Element, std::size_t Size>
QORIN_API_RESULT read_robot_with_joint(unsigned int robot_id, unsigned int joint,
                                       Element (protocol::robot_data_t::*field)[Size], Element* output)
{
    return read_robot_with_joint(
        robot_id, joint, [&](const protocol::robot_data_t& robot) { *output = element_of(robot, field, joint); });
}

/// Joint record of a robot. By bytes: the joint is not bounded, and one that is too large reads what lies further on.
[[nodiscard]] inline const protocol::joint_data_t& joint_of(const protocol::robot_data_t& robot, std::size_t joint)
{
    const auto* bytes = reinterpret_cast<const unsigned char*>(&robot);
    return *reinterpret_cast<const protocol::joint_data_t*>(bytes + offsetof(protocol::robot_data_t, joint) +
                                                            sizeof(protocol::joint_data_t) * joint);
}

/// Reads a joint record. The joint is not judged.
template <class Read>
QORIN_API_RESULT read_joint(unsigned int robot_id, unsigned int joint, Read&& read)
{
    return read_robot(robot_id, [&](const protocol::robot_data_t& robot) { return run(read, joint_of(robot, joint)); });
}

template <class Field, class... Outputs>
QORIN_API_RESULT read_joint(unsigned int robot_id, unsigned int joint, Field protocol::joint_data_t::*field,
                            Outputs*... outputs)
{
    return read_joint(robot_id, joint,
                      [&](const protocol::joint_data_t& record) { hand_out(record, field, outputs...); });
}

/// Reads the drive that a joint record names. The joint is not judged.
template <class Read>
QORIN_API_RESULT read_drive(unsigned int robot_id, unsigned int joint, Read&& read)
{
    using protocol::joint_module_data_t;
    return read_joint(robot_id, joint,
                      [&](const protocol::joint_data_t& record)
                      {
                          return read_frame(
                              [&](const protocol::shared_data_t& frame)
                              { return run(read, record_at<joint_module_data_t>(frame, record.module_index)); });
                      });
}

template <class Field, class... Outputs>
QORIN_API_RESULT read_drive(unsigned int robot_id, unsigned int joint, Field protocol::joint_module_data_t::*field,
                            Outputs*... outputs)
{
    return read_drive(robot_id, joint,
                      [&](const protocol::joint_module_data_t& drive) { hand_out(drive, field, outputs...); });
}

/// Reads the tool flange module that the robot names.
template <class Read>
QORIN_API_RESULT read_tool(unsigned int robot_id, Read&& read)
{
    using protocol::tool_module_data_t;
    return read_robot(robot_id,
                      [&](const protocol::robot_data_t& robot)
                      {
                          return read_frame(
                              [&](const protocol::shared_data_t& frame)
                              { return run(read, record_at<tool_module_data_t>(frame, robot.tool_module_index)); });
                      });
}
} // namespace qorin_api

#endif
