#ifndef API_FRAME_READ_H
#define API_FRAME_READ_H

#include <cstddef>
#include <cstring>
#include <type_traits>

#include "api/internal_robot_common.h"
#include "api/internal_shared_data.h"
#include "protocol/status_frame.h"
#include "qorin/result.h"

/**
 * The shapes of the local getters.
 *
 * A shape judges what it names, finds the record that the getter is about in the mirror of the current control box and
 * reads it in place; the first result that is not OK is the getter's. What to read stands behind:
 *
 *   field, outputs...      all elements of a field in order, one to each output
 *   field, index, output   one element of a field that is an array; the caller has judged the index
 *   function               called with the record; it may judge more, and then returns a result of its own
 */
namespace qorin_api
{
/// Element `index` of a field. By bytes: fields are not aligned.
template <class Element, class Record, class Field>
[[nodiscard]] Element element_of(const Record& record, Field Record::*field, std::size_t index)
{
    Element value;
    std::memcpy(&value, reinterpret_cast<const unsigned char*>(&(record.*field)) + index * sizeof value, sizeof value);
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
    ((*outputs = static_cast<Outputs>(element_of<element_t>(record, field, index++))), ...);
}

template <class Record, class Field, class Output, class... Outputs>
QORIN_API_RESULT read_record(const Record& record, Field Record::*field, Output* output, Outputs*... outputs)
{
    hand_out(record, field, output, outputs...);
    return QORIN_API_RESULT_OK;
}

template <class Record, class Element, std::size_t Size, class Output>
QORIN_API_RESULT read_record(const Record& record, Element (Record::*field)[Size], unsigned int index, Output* output)
{
    static_assert(sizeof(Output) == sizeof(Element));
    static_assert(std::is_floating_point_v<Output> == std::is_floating_point_v<Element>);
    *output = static_cast<Output>(element_of<Element>(record, field, index));
    return QORIN_API_RESULT_OK;
}

template <class Record, class Read>
QORIN_API_RESULT read_record(const Record& record, const Read& read)
{
    if constexpr (std::is_void_v<std::invoke_result_t<Read, const Record&>>)
    {
        read(record);
        return QORIN_API_RESULT_OK;
    }
    else
        return read(record);
}

/// Reads the frame; no robot is asked for.
template <class... What>
QORIN_API_RESULT read_frame(const What&... what)
{
    const protocol::shared_data_t* frame = qorin_internal_get_shared_data();
    return frame == nullptr ? QORIN_API_RESULT_ERROR_CBOX_ID_INVALID : read_record(*frame, what...);
}

/// Reads a numbered record of the frame: a module, a device or a port. The number is not judged.
template <class Record, class... What>
QORIN_API_RESULT read_in_frame(unsigned int index, const What&... what)
{
    return read_frame([&](const protocol::shared_data_t& frame)
                      { return read_record(protocol::record_at<Record>(frame, index), what...); });
}

/// Reads what the frame holds outside the record of a robot. The robot must be known to this process; whether the
/// control box has it is not looked at.
template <class... What>
QORIN_API_RESULT read_frame_of_robot(unsigned int robot_id, const What&... what)
{
    const QORIN_API_RESULT checked = qorin_internal_robot_common_check(robot_id, nullptr);
    return checked == QORIN_API_RESULT_OK ? read_frame(what...) : checked;
}

/// Reads the record that a check has handed out.
template <class... What>
QORIN_API_RESULT read_checked(QORIN_API_RESULT checked, const protocol::robot_data_t* robot, const What&... what)
{
    if (checked != QORIN_API_RESULT_OK)
        return checked;
    return robot == nullptr ? QORIN_API_RESULT_ERROR_CBOX_ID_INVALID : read_record(*robot, what...);
}

template <class... What>
QORIN_API_RESULT read_robot(unsigned int robot_id, const What&... what)
{
    const protocol::robot_data_t* robot = nullptr;
    const QORIN_API_RESULT checked = qorin_internal_robot_common_check(robot_id, &robot);
    return read_checked(checked, robot, what...);
}

/// The same for getters that judge `joint`, or what stands in its place, against the robot's number of joints.
template <class... What>
QORIN_API_RESULT read_robot_with_joint(unsigned int robot_id, unsigned int joint, const What&... what)
{
    const protocol::robot_data_t* robot = nullptr;
    const QORIN_API_RESULT checked = qorin_internal_robot_common_check_with_joint(robot_id, joint, &robot);
    return read_checked(checked, robot, what...);
}

/// The frame in which a robot's record lies, without asking for the mirror again: another thread may have selected
/// another control box meanwhile.
[[nodiscard]] inline const protocol::shared_data_t& frame_of(const protocol::robot_data_t& robot, unsigned int robot_id)
{
    const std::size_t offset = offsetof(protocol::shared_data_t, robots) + sizeof(robot) * robot_id;
    return *reinterpret_cast<const protocol::shared_data_t*>(reinterpret_cast<const unsigned char*>(&robot) - offset);
}

/// Element of a field that has one per joint. By its place in the frame: the number of joints that the joint was judged
/// against comes from the control box and may be more than the field has.
template <class Element, std::size_t Size>
QORIN_API_RESULT read_joint_element(unsigned int robot_id, unsigned int joint,
                                    Element (protocol::robot_data_t::*field)[Size], Element* output)
{
    const auto read = [&](const protocol::robot_data_t& robot)
    {
        const protocol::shared_data_t& frame = frame_of(robot, robot_id);
        const auto* begin = reinterpret_cast<const unsigned char*>(&(robot.*field));
        const auto offset = static_cast<std::size_t>(begin - reinterpret_cast<const unsigned char*>(&frame));
        struct QORIN_WIRE_RECORD element
        {
            Element value;
        };
        *output = protocol::read_at<element>(frame, offset + sizeof(Element) * joint).value;
    };
    return read_robot_with_joint(robot_id, joint, read);
}

/// Joint record of a robot. The joint is not bounded, and one that is too large reads what lies further on.
[[nodiscard]] inline const protocol::joint_data_t& joint_of(const protocol::robot_data_t& robot, unsigned int robot_id,
                                                            std::size_t joint)
{
    using namespace protocol;
    constexpr std::size_t first = offsetof(shared_data_t, robots) + offsetof(robot_data_t, joint);
    return read_at<joint_data_t>(frame_of(robot, robot_id),
                                 first + sizeof(robot_data_t) * robot_id + sizeof(joint_data_t) * joint);
}

/// Reads a joint record. The joint is not judged.
template <class... What>
QORIN_API_RESULT read_joint(unsigned int robot_id, unsigned int joint, const What&... what)
{
    return read_robot(robot_id, [&](const protocol::robot_data_t& robot)
                      { return read_record(joint_of(robot, robot_id, joint), what...); });
}

/// Reads the drive that a joint record names. The joint is not judged.
template <class... What>
QORIN_API_RESULT read_drive(unsigned int robot_id, unsigned int joint, const What&... what)
{
    const auto read = [&](const protocol::robot_data_t& robot)
    {
        const auto drive = joint_of(robot, robot_id, joint).module_index;
        return read_record(protocol::record_at<protocol::joint_module_data_t>(frame_of(robot, robot_id), drive),
                           what...);
    };
    return read_robot(robot_id, read);
}

/// Reads the tool flange module that the robot names.
template <class... What>
QORIN_API_RESULT read_tool(unsigned int robot_id, const What&... what)
{
    const auto read = [&](const protocol::robot_data_t& robot)
    {
        const protocol::shared_data_t& frame = frame_of(robot, robot_id);
        return read_record(protocol::record_at<protocol::tool_module_data_t>(frame, robot.tool_module_index), what...);
    };
    return read_robot(robot_id, read);
}
} // namespace qorin_api

#endif
