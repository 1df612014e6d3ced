#include "qorin/catalogue.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdio>
#include <map>
#include <memory>
#include <string>

#include "api/catalogue_xml.h"
#include "savrent/cc/immortal.h"

namespace
{
struct err_name_desc
{
    std::string name;
    std::string description;
    std::string how_to_handle;
};
using catalogue_map = std::map<unsigned int, err_name_desc>;

struct catalogue_row
{
    unsigned int code;
    const char* name;
    const char* description;
    const char* how_to_handle;
};

/// The name of a row is the identifier of its code.
#define row(code, description, how_to_handle)                                                                          \
    catalogue_row                                                                                                      \
    {                                                                                                                  \
        code, #code, description, how_to_handle                                                                        \
    }

// One line a row, however long: the texts are read and compared as a table.
// clang-format off
constexpr std::array catalogue_rows = {
    row(QORIN_API_RESULT_OK, "OK", "Nothing"),
    row(QORIN_API_RESULT_ERROR_NO_SUPPORT, "The current version of the software does not support the function.", "Please check the documentation or consult with customer service."),
    row(QORIN_API_RESULT_ERROR_CONTROL_TAKE_FAILURE, "It failed to get the control.", "Please confirm the other process has released the control."),
    row(QORIN_API_RESULT_ERROR_YOU_DONT_HAVE_THE_CONTROL, "You don't have the control.", "Please call qorin_system_control_take() function first."),
    row(QORIN_API_RESULT_ERROR_MUTEX_ALREADY_LOCKED, "The other thread is calling a function. So you cannot call the function at this moment.", "Please wait for finishing the other thread's job."),
    row(QORIN_API_RESULT_ERROR_SAVRENT_V3_ENV_NOT_EXIST, "The environment variable SAVRENT_V3 is not set.", "Please set the environment variable SAVRENT_V3 with the directory that you installed the API package."),
    row(QORIN_API_RESULT_ERROR_SAVRENT_V3_ENV_PATH_INCORRECT, "The environment variable SAVRENT_V3 is incorrect.", "Please check the documentation that describes the environment variable SAVRENT_V3."),
    row(QORIN_API_RESULT_ERROR_SW_VER_NOT_MATCHED, "Version mismatch between API and control SW.", "Reinstall API and Control SW."),
    row(QORIN_API_RESULT_ERROR_SYSTEM_COULD_NOT_OPEN_INI_FILE, "Cannot find system configuration ini file.", "Check your system ini file directory."),
    row(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID, "The cbox id is incorrect.", "Please check the cbox id parameter for the function call."),
    row(QORIN_API_RESULT_ERROR_CBOX_CANNOT_CHANGE_OPERATIONAL_STATE, "Cannot change this operational mode.", "Please check current operational mode."),
    row(QORIN_API_RESULT_ERROR_CBOX_TOOL_IO_ALREADY_ASSIGNED, "Cannot assign tool io.", "Please check the tool io index for the function call."),
    row(QORIN_API_RESULT_ERROR_CBOX_MOTOR_ALREADY_ASSIGNED, "Cannot assign motor.", "Please check the motor start index for the function call."),
    row(QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER, "Invalid IO number.", "Please check the io index for the function call."),
    row(QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE, "Invalid IO value.", "Please check the io value for the function call."),
    row(QORIN_API_RESULT_ERROR_CBOX_REDUNDANT_IO_ALL_ASSIGNED, "All redundant io areas are allocated.", "Please check the redundant io state."),
    row(QORIN_API_RESULT_ERROR_CBOX_REDUNDANT_IO_ALREADY_ASSIGNED, "This io number is allocated.", "Please check the redundant io state."),
    row(QORIN_API_RESULT_ERROR_CBOX_REDUNDANT_IO_NOT_MATCHED, "There is no mathing infomation about redundant io.", "Please check the redundant io state."),
    row(QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID, "The robot id is incorrect.", "Please check the robot id parameter for the function call."),
    row(QORIN_API_RESULT_ERROR_ROBOT_CREATION_FAILURE, "Robot createion failure.", "Please check the robot parameter for the function call."),
    row(QORIN_API_RESULT_ERROR_ROBOT_COULD_NOT_OPEN_INI_FILE, "Cannot find robot configuration ini file.", "Check your robot ini file directory."),
    row(QORIN_API_RESULT_ERROR_ROBOT_COULD_NOT_READ_INI_FILE, "Cannot read robot configuration ini file.", "Check your robot ini file internal parameter."),
    row(QORIN_API_RESULT_ERROR_ROBOT_INVALID_PARAM_IN_INI_FILE, "There is invalid parameter in configuration ini file.", "Check your robot ini file internal parameter(especially position min and max value)."),
    row(QORIN_API_RESULT_ERROR_ROBOT_COULD_NOT_RESET_STATE, "Unable to reset due to current moving state.", "There is still motion. Stop and retry."),
    row(QORIN_API_RESULT_ERROR_ROBOT_SERVO_ON_STATE, "Unable to set due to current robot servo on state.", "robot servo off and retry."),
    row(QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE, "Out of range parameters have been entered.", "Check the input parameter in your code."),
    row(QORIN_API_RESULT_ERROR_ROBOT_THREE_POINTS_STRAIGHT_LINE, "Three points are in a straight line.", "Check the start mid end points."),
    row(QORIN_API_RESULT_ERROR_ROBOT_OUTER_CIRCLE_NOT_FOUND, "Could not find outer circle.", "Check the start mid end points."),
    row(QORIN_API_RESULT_ERROR_ROBOT_FILE_LOAD_FAILURE, "Robot file loading failure.", "Check the directory and file."),
    row(QORIN_API_RESULT_ERROR_ROBOT_FILE_READ_FAILURE, "Robot file reading failure.", "Check the file format and data validity."),
    row(QORIN_API_RESULT_ERROR_ROBOT_GIVEN_PAY_LOAD_IS_LESS_THAN_ZERO, "The given payload (in kilogram) must be bigger than zero.", "Check the input parameter in your code."),
    row(QORIN_API_RESULT_ERROR_ROBOT_GIVEN_PAY_LOAD_IS_ZERO_BUT_CENTER_OF_MASS_NOT_ZERO, "The given payload (in kilogram) is zero, but the given centor of mass is not zero.", "Check the input parameter in your code."),
    row(QORIN_API_RESULT_ERROR_ROBOT_GIVEN_PAY_LOAD_MORE_THAN_MAX_CAPACITY, "The given payload (in kilogram) must be less than its max capacity.", "Check the input parameter in your code."),
    row(QORIN_API_RESULT_ERROR_ROBOT_GIVEN_PAY_LOAD_CENTER_OF_MASS_OUT_OF_RANGE, "The given center of mass for the payload is out of its minimum and maximum range.", "Check the input parameter in your code."),
    row(QORIN_API_RESULT_ERROR_ROBOT_VECTOR_SIZE_ZERO, "The given value of vector is all zero.", "Check the input parameter in your code."),
    row(QORIN_API_RESULT_ERROR_ROBOT_WORK_SPACE_IS_FULL, "Work space is full.", "Delete unnecessary work space plane and retry."),
    row(QORIN_API_RESULT_ERROR_ROBOT_INVAILD_WORK_SPACE_ID, "Invalid work space id.", "Check your work space setting log."),
    row(QORIN_API_RESULT_ROBOT_UNABLE_JOG_STATE, "Unable to run jog.", "Clear robot motion and retry."),
    row(QORIN_API_RESULT_ROBOT_INVALID_RECORDING_BUFFER_ID, "Invalid buffer ID.", "Check your buffer ID."),
    row(QORIN_API_RESULT_ERROR_ROBOT_RECORDING_INFO_MODULUS_FAILURE, "Invalid recording information.", "Check your recording file or buffer."),
    row(QORIN_API_RESULT_ERROR_ROBOT_RECORDING_EMPTY_BUFFER, "Recording buffer is empty.", "Check your recording buffer."),
    row(QORIN_API_RESULT_ROBOT_ALREADY_RECORDING_RUNNING_STATE, "It's being already recorded.", "Function calls are unnecessary."),
    row(QORIN_API_RESULT_ROBOT_ALREADY_RECORDING_STOP_STATE, "It's not recorded.", "Function calls are unnecessary."),
    row(QORIN_API_RESULT_ERROR_ROBOT_RECORDING_SPEED_FACTOR_OUT_OF_RANGE, "Speed factor is out of range.", "Check your speed factor parameter."),
    row(QORIN_API_RESULT_ERROR_ROBOT_RECORDING_INTERPOLATION_FAILURE, "Interpolation generation failure.", "Check your buffer or file."),
    row(QORIN_API_RESULT_ERROR_ROBOT_RECORDING_INVERSE_FAILURE, "Interpolation data inverse failure.", "Check your buffer or file."),
    row(QORIN_API_RESULT_ERROR_ROBOT_INVALID_IO_NUMBER, "Invalid IO number.", "Please check the io index for the function call."),
    row(QORIN_API_RESULT_ERROR_ROBOT_INVALID_IO_VALUE, "Invalid IO value.", "Please check the io value for the function call."),
    row(QORIN_API_RESULT_ERROR_ROBOT_EXT_PROFILER_BUF_FULL, "External profiler buffer is full.", "Call the external profiler add API a little slower."),
    row(QORIN_API_RESULT_ERROR_ROBOT_ENABLE_SWITCH_ON, "API cannot be called because the enable switch function is turned on.", "Retry after releasing enable switch."),
    row(QORIN_API_RESULT_ROBOT_TCP_INVALID_NUMBER_OF_ARRAY, "An invalid number has been entered.", "You should enter a value between 3 and 10."),
    row(QORIN_API_RESULT_ROBOT_TCP_HAS_SEVERAL_SOLUTIONS, "Tcp from flange point calculation failure.", "You need to set it up in more diverse positions."),
    row(QORIN_API_RESULT_ROBOT_IS_MOVING_STATE, "Current robot state is moving.", "You need to call this api in idle robot state."),
    row(QORIN_API_RESULT_ROBOT_ECAT_NOT_CONNECTED, "Current robot communication is not connected.", "You need to call this api in EtherCAT Comm. Connected. Check ECAT connection state."),
    row(QORIN_API_RESULT_ROBOT_HOME_RESET_FAILURE_NO_RESPONSE, "Fail to reset robot home position.", "Try again, or Report to CS team on repeat."),
    row(QORIN_API_RESULT_ROBOT_HOME_RESET_FAILURE_INVALID_PARAMETER, "Fail to reset robot home position.", "Check your parameter and try again, or Report to CS team on repeat."),
    row(QORIN_API_RESULT_ROBOT_TYPE_NOT_MATCHED_WITH_CBOX, "The robot type and the box type are different.", "Check out cbox and robor model that you created. You made only one side as a sim model"),
    row(QORIN_API_RESULT_ROBOT_DYNAMICS_CALIBRATION_FILE_SAVE_FAILURE, "Fail to save the robot dynamics calibration file inside the robot.", "Make sure you put the dynamics calibration file properly."),
    row(QORIN_API_RESULT_ROBOT_DYNAMICS_CALIBRATION_FAILURE, "Fail to dynamics calibration.", "Retry calibration."),
    row(QORIN_API_RESULT_ROBOT_DYNAMICS_DRY_RUN_START_FAILURE, "Fail to start dry run before calibration.", "dry run end API call and retry."),
    row(QORIN_API_RESULT_ROBOT_TARGET_START_POSE_NOT_MATCHED, "Fail to play because start angles are different.", "Match the starting angles."),
    row(QORIN_API_RESULT_ROBOT_CLIENT_KINEMATICS_MODULE_LOAD_FAILURE, "Fail to load client kinematics module.", "Check the client kinematics module path in config.ini file."),
    row(QORIN_API_RESULT_ROBOT_SERVER_KINEMATICS_MODULE_LOAD_FAILURE, "Fail to load server kinematics module.", "Check the server kinematics module path in config.ini file."),
    row(QORIN_API_RESULT_ERROR_ROBOT_NUMBER_OF_JOINT_NOT_MATCHED, "The number of joints in given parameter and the number robot's joints are not same.", "Please check the number of joints and the parameter in your code."),
    row(QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE, "The entered joint index is out of range.", "Please check the joint index parmeter in your code."),
    row(QORIN_API_RESULT_ERROR_ROBOT_JOINT_PARAM_OUT_OF_RANGE, "Out of range parameters have been entered.", "Check the input parameter in your code."),
    row(QORIN_API_RESULT_ERROR_COULD_NOT_CREATE_UNIQUE_COMMAND_ID, "Unable to create new motion command.", "Delete unnecessary commands."),
    row(QORIN_API_RESULT_ERROR_ROBOT_ID_MUST_BE_SET_FIRST, "There is no connection between motion and robot.", "Define robot ID in motion."),
    row(QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID, "Cannot find any motion information.", "Check the motion command ID or Make New motion."),
    row(QORIN_API_RESULT_ERROR_COULD_NOT_FIND_PROFILER_TYPE, "Unable to define profiler type.", "Check the profiler type."),
    row(QORIN_API_RESULT_ERROR_MOTION_COMMAND_OUT_OF_RANGE, "Out of range parameters have been entered.", "Check the input parameter in your code."),
    row(QORIN_API_RESULT_ERROR_COULD_NOT_SET_BLENDING_MODE, "It is impossible to change the blending mode.", "Check motion type."),
    row(QORIN_API_RESULT_ERROR_MOTION_CANNOT_INSERT_IN_CONVEYOR, "It is a motion that cannot be inserted in a conveyor state.", "Change motion type to normal tcp(not blending)."),
    row(QORIN_API_RESULT_ERROR_MOTION_CANNOT_SET_IO_TYPE, "This IO type cannot be generated.", "Change io type to digital I/O."),
    row(QORIN_API_RESULT_ERROR_MOTION_UNINSERTABLE_STATE, "Motion cannot be inserted due to robot condition.", "Check robot state(servo, position mode, collision, emg stop, safeguard stop, ...etc."),
    row(QORIN_API_RESULT_ERROR_MOTION_PROFILING_FAILURE, "Motion cannot be generated due to profiling failure.", "Adjust start or end velocity."),
    row(QORIN_API_RESULT_ERROR_MOTION_OUT_OF_ANGLE_RANGE, "Motion is out of angle range.", "Modify motion parameter."),
    row(QORIN_API_RESULT_ERROR_MOTION_SINGULARITY_POINT, "There is a singular point in ther motion.", "Modify motion parameter."),
    row(QORIN_API_RESULT_ERROR_MOTION_AUTO_SPEED_DOWN_FAILURE, "Cannot slow down due to safety violation.", "Adjust start or end velocity."),
    row(QORIN_API_RESULT_ERROR_MOTION_TWO_POSITION_SAME, "There are same input positions.", "Check your input start, mid, end position."),
    row(QORIN_API_RESULT_ERROR_MOTION_DIRECTION_VECTOR_NOT_SAME, "previous and current motion's direction is not same.", "Check your input start, mid, end position about previous and current motion."),
    row(QORIN_API_RESULT_ERROR_KEY_NOT_FOUND, "Cannot find user key.", "Check your user memory function call."),
    row(QORIN_API_RESULT_ERROR_KEY_MAX_MEMORY, "User memory is full.", "Check your user memory function call."),
    row(QORIN_API_RESULT_MODBUS_EXCEPTION_ERROR, "Reserved.", "Reserved."),
    row(QORIN_API_RESULT_MODBUS_REQUEST_FAIL, "Reserved.", "Reserved."),
    row(QORIN_API_RESULT_MODBUS_INPUT_ERROR, "Reserved.", "Reserved."),
    row(QORIN_API_RESULT_MODBUS_CLIENT_NAME_ERROR, "Reserved.", "Reserved."),
    row(QORIN_API_RESULT_MODBUS_CLIENT_ADD_FAIL, "Reserved.", "Reserved."),
    row(QORIN_API_RESULT_MODBUS_CLIENT_IO_NAME_ERROR, "Reserved.", "Reserved."),
    row(QORIN_API_RESULT_MODBUS_CLIENT_IO_ADD_FAIL, "Reserved.", "Reserved."),
    row(QORIN_API_RESULT_MODBUS_CLIENT_EXCEPTION_ILLEGAL_FUNC_TYPE, "Reserved.", "Reserved."),
    row(QORIN_API_RESULT_MODBUS_CLIENT_EXCEPTION_ILLEGAL_DATA_ADDRESS, "Reserved.", "Reserved."),
    row(QORIN_API_RESULT_MODBUS_CLIENT_EXCEPTION_ILLEGAL_CMD, "Reserved.", "Reserved."),
    row(QORIN_API_RESULT_EIP_REQUEST_FAIL, "Reserved.", "Reserved."),
    row(QORIN_API_RESULT_PROFINET_REQUEST_FAIL, "Reserved.", "Reserved."),
    row(QORIN_API_RESULT_ERROR_SDO_READ_FAILURE, "EtherCAT SDO read failure.", "Reboot and retry or Report to CS team on repeat."),
    row(QORIN_API_RESULT_ERROR_SDO_READ_NO_RESPONSE, "EtherCAT SDO read failure(no response).", "Reboot and retry or Report to CS team on repeat."),
    row(QORIN_API_RESULT_ERROR_IO_LINK_INVALID_WP_NUMBER, "Reserved", "Reserved"),
    row(QORIN_API_RESULT_ERROR_UNKNOWN, "An unknown error has occurred.", "Please send the code fragement to customer servce."),
    row(QORIN_API_RESULT_ERROR_SAVRENT_INTERNAL_ERROR, "An error occurred inside the control during API processing.", "Retry after system reset, Report to CS team on repeat."),
    row(QORIN_API_RESULT_ERROR_PREV_SAVRENT_INTERNAL_ERROR_NOT_YET_RESOLVED, "Call function without reset after QORIN_API_RESULT_ERROR_SAVRENT_INTERNAL_ERROR occurs.", "Retry after system reset, Report to CS team on repeat."),
    row(QORIN_API_RESULT_ERROR_CALL_TIMEOUT, "After a function call, No response was received for processing functions in 1 second.", "Retry after system reset, Report to CS team on repeat."),
    row(QORIN_API_RESULT_ERROR_CONFIG_FILE_LOAD_FAILURE, "Configuration file loading failure.", "Retry using sample config file, Report to CS team on repeat with config file."),
    row(QORIN_API_RESULT_WARNING_BEGIN, "Not occurred", "Not occurred"),
    row(QORIN_API_RESULT_WARNING_SYSTEM_ALREADY_CREATED, "The system is already initialized.", "It can be ignored depending on the operation."),
    row(QORIN_API_RESULT_WARNING_YOU_DONT_HAVE_THE_CONTROL, "Already have control", "It's negligible."),
    row(QORIN_API_RESULT_WARNING_NULLPTR_IS_GIVEN_DEFAULT_VALUE_IS_USED, "Do not enter config file path. Specifies the default path.", "It can be ignored depending on the operation."),
    row(QORIN_API_RESULT_WARNING_YOU_ALREADY_RELEASED_THE_CONTROL, "Already hand over control", "It's negligible."),
    row(QORIN_API_RESULT_WARNING_MOTION_COMMAND_PARAMETERS_ARE_EMPTY, "Motion queue is empty.", "It's negligible."),
    row(QORIN_API_RESULT_WARNING_ROBOT_INVERSE_FAILURE, "Fail to calculate inverse kinematics", "Check the parameter"),
    row(QORIN_API_RESULT_WARNING_ROBOT_WORK_SPACE_ALREADY_DELETED, "There is no workspace", "It's negligible."),
    row(QORIN_API_RESULT_WARNING_ROBOT_CONVEYOR_ENCODER_NOT_SETTING, "The conveyor is not set", "Set conveyor and call this function"),
    row(QORIN_API_RESULT_WARNING_CBOX_OPERATION_MODE_ALREADY_CHANGED, "Already change operational mode", "It's negligible."),
    row(QORIN_API_RESULT_WARNING_CBOX_NAME_DIFFERENT, "The cbox model you set and the cbox model that was already made in a different process are different.", "Check out the cbox model made by another process"),
    row(QORIN_API_RESULT_WARNING_COULD_NOT_FIND_COMMAND_ID, "This command id has not been created.", "Check the command id"),
};
// clang-format on
#undef row

static_assert(catalogue_rows.size() == 115);

constexpr unsigned int internal_block_begin = 190000;
constexpr unsigned int internal_block_end = 199999;
constexpr const char* g_str_not_found = "Not Found";

bool is_internal(unsigned int code)
{
    return code >= internal_block_begin && code <= internal_block_end;
}

std::unique_ptr<catalogue_map> filled_catalogue()
{
    auto catalogue = std::make_unique<catalogue_map>();
    for (const catalogue_row& entry : catalogue_rows)
        (*catalogue)[entry.code] = {entry.name, entry.description, entry.how_to_handle};
    return catalogue;
}

/// Filled on first use; outlives blocked commands that still ask for a name while the process ends.
const catalogue_map& catalogue()
{
    static savrent::cc::immortal<std::unique_ptr<catalogue_map>> g_p_err_msg_map(filled_catalogue());
    return **g_p_err_msg_map;
}

/**
 * The text for a code of the internal block, null for any other code.
 *
 * One text for the process, rewritten on every call whatever the code. Its characters are atomic because any thread
 * may look a code up while another still holds the text.
 */
const char* get_unknown_desc(unsigned int code)
{
    static std::array<std::atomic<char>, 32> g_unknown_desc = {};
    static_assert(sizeof(std::atomic<char>) == 1);

    char fresh[32];
    const int length = is_internal(code) ? std::snprintf(fresh, sizeof(fresh), "Unknown Error Code : %06u", code)
                                         : std::snprintf(fresh, sizeof(fresh), "Unknown Error Code : ");
    for (int i = 0; i <= length; ++i)
        g_unknown_desc[static_cast<std::size_t>(i)].store(fresh[i], std::memory_order_relaxed);
    return is_internal(code) ? reinterpret_cast<const char*>(g_unknown_desc.data()) : nullptr;
}

/// The name and the description of a code come by the same steps.
const char* look_up(unsigned int code, std::string err_name_desc::*field)
{
    const catalogue_map& rows = catalogue();
    if (const char* unknown = get_unknown_desc(code))
        return unknown;
    const auto found = rows.find(code);
    return found == rows.end() ? g_str_not_found : (found->second.*field).c_str();
}
} // namespace

const char* qorin_system_api_result_string_get(QORIN_API_RESULT result)
{
    return look_up(result, &err_name_desc::name);
}

const char* qorin_system_api_result_description_get(QORIN_API_RESULT result)
{
    return look_up(result, &err_name_desc::description);
}

// Not the third twin: only the internal block has advice here, and its rows are the ones that the other two hide.
const char* qorin_system_api_result_how_to_handle_get(QORIN_API_RESULT result)
{
    const catalogue_map& rows = catalogue();
    if (!is_internal(result))
        return nullptr;
    const auto found = rows.find(result);
    return found == rows.end() ? g_str_not_found : found->second.how_to_handle.c_str();
}

QORIN_API_RESULT qorin_system_api_result_description_all_xml_save(const char* path)
{
    const catalogue_map& rows = catalogue();
    qorin_api::catalogue_xml file(path, "QorinApiError");
    for (const auto& [code, texts] : rows)
        file.write_row("ErrInfo", {{"Name", texts.name},
                                   {"Code", std::to_string(code)},
                                   {"Description", texts.description},
                                   {"HowToHandle", texts.how_to_handle}});
    return QORIN_API_RESULT_OK;
}
