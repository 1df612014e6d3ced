/**
 * @file result.h
 * Result codes of the exported functions.
 */
#ifndef QORIN_RESULT_H
#define QORIN_RESULT_H

#include "qorin/export.h"

/**
 * Result of an exported function.
 *
 * Only QORIN_API_RESULT_OK is success: warnings, from 200000 on, are no success either. A command whose
 * link is lost gives the value 0, which is no member of this enumeration.
 */
typedef enum QORIN_API_RESULT QORIN_ENUM_BASE
{
    /** OK. */
    QORIN_API_RESULT_OK = 100000,
    /** The current version of the software does not support the function. */
    QORIN_API_RESULT_ERROR_NO_SUPPORT = 100001,
    /** It failed to get the control. */
    QORIN_API_RESULT_ERROR_CONTROL_TAKE_FAILURE = 100002,
    /** You don't have the control. */
    QORIN_API_RESULT_ERROR_YOU_DONT_HAVE_THE_CONTROL = 100003,
    /** The other thread is calling a function. So you cannot call the function at this moment. */
    QORIN_API_RESULT_ERROR_MUTEX_ALREADY_LOCKED = 100004,
    /** The environment variable SAVRENT_V3 is not set. */
    QORIN_API_RESULT_ERROR_SAVRENT_V3_ENV_NOT_EXIST = 100005,
    /** The environment variable SAVRENT_V3 is incorrect. */
    QORIN_API_RESULT_ERROR_SAVRENT_V3_ENV_PATH_INCORRECT = 100006,
    /** Version mismatch between API and control SW. */
    QORIN_API_RESULT_ERROR_SW_VER_NOT_MATCHED = 100007,
    /** Cannot find system configuration ini file. */
    QORIN_API_RESULT_ERROR_SYSTEM_COULD_NOT_OPEN_INI_FILE = 100008,
    /** The control software is not initialised. */
    QORIN_API_RESULT_ERROR_SYSTEM_CONTROL_SW_NOT_INIT = 100009,
    /** The control software is not running. */
    QORIN_API_RESULT_ERROR_SYSTEM_CONTROL_SW_NOT_RUNNING = 100010,
    /** The shared memory of the control software cannot be created. */
    QORIN_API_RESULT_ERROR_SYSTEM_CANNOT_CREATE_SHARED_MEM = 100011,
    /** A command function gave no response. */
    QORIN_API_RESULT_ERROR_COMMAND_FUNCTION_NO_RESPONSE = 100012,
    /** The cbox id is incorrect. */
    QORIN_API_RESULT_ERROR_CBOX_ID_INVALID = 101000,
    /** Cannot change this operational mode. */
    QORIN_API_RESULT_ERROR_CBOX_CANNOT_CHANGE_OPERATIONAL_STATE = 101001,
    /** Cannot assign tool io. */
    QORIN_API_RESULT_ERROR_CBOX_TOOL_IO_ALREADY_ASSIGNED = 101002,
    /** Cannot assign motor. */
    QORIN_API_RESULT_ERROR_CBOX_MOTOR_ALREADY_ASSIGNED = 101003,
    /** Invalid IO number. */
    QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER = 101004,
    /** Invalid IO value. */
    QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE = 101005,
    /** All redundant io areas are allocated. */
    QORIN_API_RESULT_ERROR_CBOX_REDUNDANT_IO_ALL_ASSIGNED = 101006,
    /** This io number is allocated. */
    QORIN_API_RESULT_ERROR_CBOX_REDUNDANT_IO_ALREADY_ASSIGNED = 101007,
    /** There is no mathing infomation about redundant io. */
    QORIN_API_RESULT_ERROR_CBOX_REDUNDANT_IO_NOT_MATCHED = 101008,
    /** The index of the mobile base emergency button is out of range (0 to 3). */
    QORIN_API_RESULT_ERROR_CBOX_INVALID_AMR_EMG_NUMBER = 101009,
    /** The robot id is incorrect. */
    QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID = 102000,
    /** Robot createion failure. */
    QORIN_API_RESULT_ERROR_ROBOT_CREATION_FAILURE = 102001,
    /** Cannot find robot configuration ini file. */
    QORIN_API_RESULT_ERROR_ROBOT_COULD_NOT_OPEN_INI_FILE = 102002,
    /** Cannot read robot configuration ini file. */
    QORIN_API_RESULT_ERROR_ROBOT_COULD_NOT_READ_INI_FILE = 102003,
    /** There is invalid parameter in configuration ini file. */
    QORIN_API_RESULT_ERROR_ROBOT_INVALID_PARAM_IN_INI_FILE = 102004,
    /** Unable to reset due to current moving state. */
    QORIN_API_RESULT_ERROR_ROBOT_COULD_NOT_RESET_STATE = 102005,
    /** Unable to set due to current robot servo on state. */
    QORIN_API_RESULT_ERROR_ROBOT_SERVO_ON_STATE = 102006,
    /** Out of range parameters have been entered. */
    QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE = 102007,
    /** Three points are in a straight line. */
    QORIN_API_RESULT_ERROR_ROBOT_THREE_POINTS_STRAIGHT_LINE = 102008,
    /** Could not find outer circle. */
    QORIN_API_RESULT_ERROR_ROBOT_OUTER_CIRCLE_NOT_FOUND = 102009,
    /** Robot file loading failure. */
    QORIN_API_RESULT_ERROR_ROBOT_FILE_LOAD_FAILURE = 102010,
    /** Robot file reading failure. */
    QORIN_API_RESULT_ERROR_ROBOT_FILE_READ_FAILURE = 102011,
    /** The given payload (in kilogram) must be bigger than zero. */
    QORIN_API_RESULT_ERROR_ROBOT_GIVEN_PAY_LOAD_IS_LESS_THAN_ZERO = 102012,
    /** The given payload (in kilogram) is zero, but the given centor of mass is not zero. */
    QORIN_API_RESULT_ERROR_ROBOT_GIVEN_PAY_LOAD_IS_ZERO_BUT_CENTER_OF_MASS_NOT_ZERO = 102013,
    /** The given payload (in kilogram) must be less than its max capacity. */
    QORIN_API_RESULT_ERROR_ROBOT_GIVEN_PAY_LOAD_MORE_THAN_MAX_CAPACITY = 102014,
    /** The given center of mass for the payload is out of its minimum and maximum range. */
    QORIN_API_RESULT_ERROR_ROBOT_GIVEN_PAY_LOAD_CENTER_OF_MASS_OUT_OF_RANGE = 102015,
    /** The given value of vector is all zero. */
    QORIN_API_RESULT_ERROR_ROBOT_VECTOR_SIZE_ZERO = 102016,
    /** Work space is full. */
    QORIN_API_RESULT_ERROR_ROBOT_WORK_SPACE_IS_FULL = 102017,
    /** Invalid work space id. */
    QORIN_API_RESULT_ERROR_ROBOT_INVAILD_WORK_SPACE_ID = 102018,
    /** Unable to run jog. */
    QORIN_API_RESULT_ROBOT_UNABLE_JOG_STATE = 102019,
    /** Invalid buffer ID. */
    QORIN_API_RESULT_ROBOT_INVALID_RECORDING_BUFFER_ID = 102020,
    /** Invalid recording information. */
    QORIN_API_RESULT_ERROR_ROBOT_RECORDING_INFO_MODULUS_FAILURE = 102021,
    /** Recording buffer is empty. */
    QORIN_API_RESULT_ERROR_ROBOT_RECORDING_EMPTY_BUFFER = 102022,
    /** It's being already recorded. */
    QORIN_API_RESULT_ROBOT_ALREADY_RECORDING_RUNNING_STATE = 102023,
    /** It's not recorded. */
    QORIN_API_RESULT_ROBOT_ALREADY_RECORDING_STOP_STATE = 102024,
    /** Speed factor is out of range. */
    QORIN_API_RESULT_ERROR_ROBOT_RECORDING_SPEED_FACTOR_OUT_OF_RANGE = 102025,
    /** Interpolation generation failure. */
    QORIN_API_RESULT_ERROR_ROBOT_RECORDING_INTERPOLATION_FAILURE = 102026,
    /** Interpolation data inverse failure. */
    QORIN_API_RESULT_ERROR_ROBOT_RECORDING_INVERSE_FAILURE = 102027,
    /** Invalid IO number. */
    QORIN_API_RESULT_ERROR_ROBOT_INVALID_IO_NUMBER = 102028,
    /** Invalid IO value. */
    QORIN_API_RESULT_ERROR_ROBOT_INVALID_IO_VALUE = 102029,
    /** External profiler buffer is full. */
    QORIN_API_RESULT_ERROR_ROBOT_EXT_PROFILER_BUF_FULL = 102030,
    /** API cannot be called because the enable switch function is turned on. */
    QORIN_API_RESULT_ERROR_ROBOT_ENABLE_SWITCH_ON = 102031,
    /** An invalid number has been entered. */
    QORIN_API_RESULT_ROBOT_TCP_INVALID_NUMBER_OF_ARRAY = 102032,
    /** Tcp from flange point calculation failure. */
    QORIN_API_RESULT_ROBOT_TCP_HAS_SEVERAL_SOLUTIONS = 102033,
    /** Current robot state is moving. */
    QORIN_API_RESULT_ROBOT_IS_MOVING_STATE = 102034,
    /** Current robot communication is not connected. */
    QORIN_API_RESULT_ROBOT_ECAT_NOT_CONNECTED = 102035,
    /** Fail to reset robot home position. */
    QORIN_API_RESULT_ROBOT_HOME_RESET_FAILURE_NO_RESPONSE = 102036,
    /** Fail to reset robot home position. */
    QORIN_API_RESULT_ROBOT_HOME_RESET_FAILURE_INVALID_PARAMETER = 102037,
    /** The robot type and the box type are different. */
    QORIN_API_RESULT_ROBOT_TYPE_NOT_MATCHED_WITH_CBOX = 102038,
    /** Fail to save the robot dynamics calibration file inside the robot. */
    QORIN_API_RESULT_ROBOT_DYNAMICS_CALIBRATION_FILE_SAVE_FAILURE = 102039,
    /** Fail to dynamics calibration. */
    QORIN_API_RESULT_ROBOT_DYNAMICS_CALIBRATION_FAILURE = 102040,
    /** Fail to start dry run before calibration. */
    QORIN_API_RESULT_ROBOT_DYNAMICS_DRY_RUN_START_FAILURE = 102041,
    /** Fail to play because start angles are different. */
    QORIN_API_RESULT_ROBOT_TARGET_START_POSE_NOT_MATCHED = 102042,
    /** Fail to load client kinematics module. */
    QORIN_API_RESULT_ROBOT_CLIENT_KINEMATICS_MODULE_LOAD_FAILURE = 102043,
    /** Fail to load server kinematics module. */
    QORIN_API_RESULT_ROBOT_SERVER_KINEMATICS_MODULE_LOAD_FAILURE = 102044,
    /** The static payload validation failed. */
    QORIN_API_RESULT_ROBOT_STATIC_PAYLOAD_VALICATION_FAILURE = 102045,
    /** The number of joints in given parameter and the number robot's joints are not same. */
    QORIN_API_RESULT_ERROR_ROBOT_NUMBER_OF_JOINT_NOT_MATCHED = 103000,
    /** The entered joint index is out of range. */
    QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE = 103001,
    /** Out of range parameters have been entered. */
    QORIN_API_RESULT_ERROR_ROBOT_JOINT_PARAM_OUT_OF_RANGE = 103002,
    /** Unable to create new motion command. */
    QORIN_API_RESULT_ERROR_COULD_NOT_CREATE_UNIQUE_COMMAND_ID = 104000,
    /** There is no connection between motion and robot. */
    QORIN_API_RESULT_ERROR_ROBOT_ID_MUST_BE_SET_FIRST = 104001,
    /** Cannot find any motion information. */
    QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID = 104002,
    /** Unable to define profiler type. */
    QORIN_API_RESULT_ERROR_COULD_NOT_FIND_PROFILER_TYPE = 104003,
    /** Out of range parameters have been entered. */
    QORIN_API_RESULT_ERROR_MOTION_COMMAND_OUT_OF_RANGE = 104004,
    /** It is impossible to change the blending mode. */
    QORIN_API_RESULT_ERROR_COULD_NOT_SET_BLENDING_MODE = 104005,
    /** It is a motion that cannot be inserted in a conveyor state. */
    QORIN_API_RESULT_ERROR_MOTION_CANNOT_INSERT_IN_CONVEYOR = 104006,
    /** This IO type cannot be generated. */
    QORIN_API_RESULT_ERROR_MOTION_CANNOT_SET_IO_TYPE = 104007,
    /** Motion cannot be inserted due to robot condition. */
    QORIN_API_RESULT_ERROR_MOTION_UNINSERTABLE_STATE = 104008,
    /** Motion cannot be generated due to profiling failure. */
    QORIN_API_RESULT_ERROR_MOTION_PROFILING_FAILURE = 104009,
    /** Motion is out of angle range. */
    QORIN_API_RESULT_ERROR_MOTION_OUT_OF_ANGLE_RANGE = 104010,
    /** There is a singular point in ther motion. */
    QORIN_API_RESULT_ERROR_MOTION_SINGULARITY_POINT = 104011,
    /** Cannot slow down due to safety violation. */
    QORIN_API_RESULT_ERROR_MOTION_AUTO_SPEED_DOWN_FAILURE = 104012,
    /** There are same input positions. */
    QORIN_API_RESULT_ERROR_MOTION_TWO_POSITION_SAME = 104013,
    /** previous and current motion's direction is not same. */
    QORIN_API_RESULT_ERROR_MOTION_DIRECTION_VECTOR_NOT_SAME = 104014,
    /** Cannot find user key. */
    QORIN_API_RESULT_ERROR_KEY_NOT_FOUND = 105000,
    /** User memory is full. */
    QORIN_API_RESULT_ERROR_KEY_MAX_MEMORY = 105001,
    /** Reserved. */
    QORIN_API_RESULT_MODBUS_EXCEPTION_ERROR = 106000,
    /** Reserved. */
    QORIN_API_RESULT_MODBUS_REQUEST_FAIL = 106001,
    /** Reserved. */
    QORIN_API_RESULT_MODBUS_INPUT_ERROR = 106002,
    /** Reserved. */
    QORIN_API_RESULT_MODBUS_CLIENT_NAME_ERROR = 106003,
    /** Reserved. */
    QORIN_API_RESULT_MODBUS_CLIENT_ADD_FAIL = 106004,
    /** Reserved. */
    QORIN_API_RESULT_MODBUS_CLIENT_IO_NAME_ERROR = 106005,
    /** Reserved. */
    QORIN_API_RESULT_MODBUS_CLIENT_IO_ADD_FAIL = 106006,
    /** Reserved. */
    QORIN_API_RESULT_MODBUS_CLIENT_EXCEPTION_ILLEGAL_FUNC_TYPE = 106007,
    /** Reserved. */
    QORIN_API_RESULT_MODBUS_CLIENT_EXCEPTION_ILLEGAL_DATA_ADDRESS = 106008,
    /** Reserved. */
    QORIN_API_RESULT_MODBUS_CLIENT_EXCEPTION_ILLEGAL_CMD = 106009,
    /** Reserved. */
    QORIN_API_RESULT_EIP_REQUEST_FAIL = 106010,
    /** Reserved. */
    QORIN_API_RESULT_PROFINET_REQUEST_FAIL = 106011,
    /** EtherCAT SDO read failure. */
    QORIN_API_RESULT_ERROR_SDO_READ_FAILURE = 106012,
    /** EtherCAT SDO read failure(no response). */
    QORIN_API_RESULT_ERROR_SDO_READ_NO_RESPONSE = 106013,
    /** Reserved. */
    QORIN_API_RESULT_ERROR_IO_LINK_INVALID_WP_NUMBER = 106014,
    /** The device id is out of range. */
    QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER = 106015,
    /** The data size is out of range. */
    QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE = 106016,
    /** An unknown error has occurred. */
    QORIN_API_RESULT_ERROR_UNKNOWN = 190000,
    /** An error occurred inside the control during API processing. */
    QORIN_API_RESULT_ERROR_SAVRENT_INTERNAL_ERROR = 190001,
    /** Call function without reset after QORIN_API_RESULT_ERROR_SAVRENT_INTERNAL_ERROR occurs. */
    QORIN_API_RESULT_ERROR_PREV_SAVRENT_INTERNAL_ERROR_NOT_YET_RESOLVED = 190002,
    /** After a function call, No response was received for processing functions in 1 second. */
    QORIN_API_RESULT_ERROR_CALL_TIMEOUT = 190003,
    /** Configuration file loading failure. */
    QORIN_API_RESULT_ERROR_CONFIG_FILE_LOAD_FAILURE = 190004,
    /** Marker; never a result. */
    QORIN_API_RESULT_WARNING_BEGIN = 200000,
    /** The system is already initialized. */
    QORIN_API_RESULT_WARNING_SYSTEM_ALREADY_CREATED = 200001,
    /** Already have control. */
    QORIN_API_RESULT_WARNING_YOU_DONT_HAVE_THE_CONTROL = 200002,
    /** Do not enter config file path. Specifies the default path. */
    QORIN_API_RESULT_WARNING_NULLPTR_IS_GIVEN_DEFAULT_VALUE_IS_USED = 200003,
    /** Already hand over control. */
    QORIN_API_RESULT_WARNING_YOU_ALREADY_RELEASED_THE_CONTROL = 200004,
    /** Motion queue is empty. */
    QORIN_API_RESULT_WARNING_MOTION_COMMAND_PARAMETERS_ARE_EMPTY = 200005,
    /** Fail to calculate inverse kinematics. */
    QORIN_API_RESULT_WARNING_ROBOT_INVERSE_FAILURE = 200006,
    /** There is no workspace. */
    QORIN_API_RESULT_WARNING_ROBOT_WORK_SPACE_ALREADY_DELETED = 200007,
    /** The conveyor is not set. */
    QORIN_API_RESULT_WARNING_ROBOT_CONVEYOR_ENCODER_NOT_SETTING = 200008,
    /** Already change operational mode. */
    QORIN_API_RESULT_WARNING_CBOX_OPERATION_MODE_ALREADY_CHANGED = 200009,
    /** The cbox model you set and the cbox model that was already made in a different process are different. */
    QORIN_API_RESULT_WARNING_CBOX_NAME_DIFFERENT = 200010,
    /** This command id has not been created. */
    QORIN_API_RESULT_WARNING_COULD_NOT_FIND_COMMAND_ID = 200011
} QORIN_API_RESULT;

#endif
