/**
 * @file system.h
 * Connection, control and versions: the start and the end of every application.
 *
 * The usual order is qorin_rpc_system_cbox_connect(), qorin_rpc_gen_system_create(), qorin_rpc_system_control_take(),
 * work, qorin_rpc_system_control_release(), qorin_rpc_system_destroy().
 *
 * Commands. Unless a function says otherwise it is a command: it writes one line to the call log, sends one request to
 * the control box and blocks until the reply has come, however long that takes; there is no time-out. One lock
 * serialises all commands of the process, over all control boxes and threads. Any thread may call. The control box
 * judges the arguments. A command returns
 *   - what the control box answered, QORIN_API_RESULT_OK being the only success,
 *   - QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected, with nothing sent and no output touched,
 *   - 0 when the command link is lost.
 * These, when not OK, are also lines of the event log. What a function finds out by itself ahead of a command or behind
 * it, as qorin_rpc_robot_create() does, is none.
 *
 * Failures and outputs. Whatever the result, once a request was sent all outputs are written: with what the reply
 * holds, which is zeroes where the control box put nothing and after a lost link. An application that wants to keep a
 * value takes the output in a variable of its own, and looks at the result first.
 *
 * Replies carry no number. One reply too many on the link is taken for the answer to the next command, and all later
 * answers are then those of the command before. What the application sees is results and outputs that do not fit what
 * was asked; the way out is a new connection.
 *
 * Texts. A command reads exactly 128 bytes from a text or array parameter, whatever its length: the memory behind it
 * must be readable that far. A text of 128 bytes or more is cut. A null pointer is sent as zeroes.
 *
 * Outputs. A command also reads 128 bytes from each output pointer, since an output takes a slot of the request. It
 * writes 4 bytes through it (8 through a double*), whatever the pointed-to type is.
 *
 * A write to a link that the control box has closed raises SIGPIPE, unless the application ignores that signal.
 */
#ifndef QORIN_SYSTEM_H
#define QORIN_SYSTEM_H

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/**
 * Connects to a control box.
 *
 * The first call in a process loads the configuration and opens the logs; they serve all control boxes, and later calls
 * do not look at config_path. Three links are then made to TCP port 7700, and after 2 seconds, in which the first
 * status frame arrives, the versions of both sides are compared. Blocks for at least 2.3 seconds on success. The
 * calling thread is pinned to core 3, where the machine has one, and the receive threads inherit that. Not a command:
 * it takes no lock. To be called by one thread at a time, while no other thread is inside the library.
 *
 * A connection lasts until the process ends: callbacks and status end ahead of what the application made before its
 * first connection, commands are answered until its last handler and static object. A process that was forked off must
 * not use the connections of its parent. The receive threads run with all signals blocked.
 *
 * The control box tells the three links apart by the order in which they come, for some 350 milliseconds after the
 * first one. Two programs of one machine that connect to a box within that time can get each other's links: let them
 * connect one after the other, under a lock that they share.
 *
 * @param config_path   configuration file; null for $SAVRENT_V3/config/config.ini. Its values are printed as lines of
 *                      at most 1,023 characters: a value of 1,000 ends the process.
 * @param address       IPv4 address of the control box in dotted form. Null counts as malformed, and so does a name of
 *                      a host, also "localhost".
 * @param[out] cbox_id  the control box id, 0 for the first control box of the process, then 1 and so on. May be null.
 *                      Untouched unless the links stand, and stored as soon as they do.
 * @return QORIN_API_RESULT_OK;
 *         QORIN_API_RESULT_ERROR_CONFIG_FILE_LOAD_FAILURE when the configuration cannot be loaded, on the first call
 *         only: a second call goes on with no configuration, hence with no logs;
 *         QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when a link cannot be made;
 *         QORIN_API_RESULT_ERROR_SW_VER_NOT_MATCHED when the versions differ: the connection stands all the same and
 *         cbox_id is valid. The first control box's version is the one that all later ones are taken to have.
 *
 * In C++, std::logic_error is thrown when config_path is null and SAVRENT_V3 is not set, a file system exception when
 * the log directories cannot be made, and std::system_error when a thread cannot be started.
 * After one of the first two the next call begins anew; a configuration that was loaded stays.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_system_cbox_connect(const char* config_path, const char* address,
                                                         unsigned int* cbox_id);

/**
 * Makes the control software create its system.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param text     text for the control software, which defines its meaning; 128 bytes are read.
 * @param model    model of the control box.
 * @return as every command; the control box answers QORIN_API_RESULT_WARNING_SYSTEM_ALREADY_CREATED when a system
 * stands.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_gen_system_create(unsigned int cbox_id, const char* text, QORIN_CBOX_MODEL model);

/**
 * Makes the control software create a system for several robots.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param text     text for the control software, which defines its meaning; 128 bytes are read.
 * @param model    model of the control box.
 * @param count    number of robots.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_gen_multi_robot_system_create(unsigned int cbox_id, const char* text,
                                                                   QORIN_CBOX_MODEL model, unsigned int count);

/**
 * Makes the control software destroy its system. The connection stays.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_system_destroy(unsigned int cbox_id);

/**
 * Asks for exclusive command of the control box. Ownership lives on the control box; the library keeps no record.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @return as every command; the control box answers QORIN_API_RESULT_ERROR_CONTROL_TAKE_FAILURE when another client has
 *         the control. Commands without the control are answered QORIN_API_RESULT_ERROR_YOU_DONT_HAVE_THE_CONTROL.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_system_control_take(unsigned int cbox_id);

/**
 * Gives the control back.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_system_control_release(unsigned int cbox_id);

/**
 * Asks the control box whether this client may command it.
 *
 * @param cbox_id            control box id from qorin_rpc_system_cbox_connect().
 * @param[out] controllable  QORIN_SWITCH_ON or QORIN_SWITCH_OFF, from the reply; 128 bytes are read from here.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_system_controllable_get(unsigned int cbox_id, QORIN_SWITCH* controllable);

/**
 * Resets the system of the control software.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_system_reset(unsigned int cbox_id);

/**
 * Asks the control software to exit. It then closes the links: commands answer 0 and the status mirror stands still.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_system_control_sw_exit(unsigned int cbox_id);

/**
 * The version text of this library. Local; no command.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @return a text that the library owns, the same for all control boxes; null when cbox_id is not connected.
 */
QORIN_API const char* qorin_rpc_system_api_version_get(unsigned int cbox_id);

/**
 * The version text of the control software, from the status mirror. Not a command: it does not block.
 *
 * The text is taken once in a process, by the first connection, and never refreshed: every control box answers with the
 * version of the first.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @return a text that the library owns; null when cbox_id is not connected.
 */
QORIN_API const char* qorin_rpc_system_control_sw_version_get(unsigned int cbox_id);

/**
 * Not supported; does nothing.
 *
 * @param cbox_id  ignored, as is everything behind it.
 * @return QORIN_API_RESULT_ERROR_NO_SUPPORT.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_system_create(unsigned int cbox_id, ...);

/**
 * Not supported; does nothing.
 *
 * @param cbox_id  ignored, as is everything behind it.
 * @return QORIN_API_RESULT_ERROR_NO_SUPPORT.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_gen_system_connect_and_create(unsigned int cbox_id, ...);

/**
 * Not supported; does nothing.
 *
 * @param cbox_id  ignored, as is everything behind it.
 * @return QORIN_API_RESULT_ERROR_NO_SUPPORT.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_system_memory_create(unsigned int cbox_id, ...);

/**
 * The version text of this library. Local; does not block.
 *
 * @return a text that the library owns.
 */
QORIN_API const char* qorin_system_api_version_get(void);

/**
 * The version text that the current control box had when it was first asked for; see
 * qorin_rpc_system_control_sw_version_get(). From the status mirror; does not block.
 *
 * @return a text that the library owns; null when no control box has been connected yet.
 */
QORIN_API const char* qorin_system_control_sw_version_get(void);

/**
 * Whether this process may command. In this client always so: qorin_rpc_system_controllable_get() asks the control box.
 *
 * @param[out] controllable  QORIN_SWITCH_ON. Must not be null.
 * @return QORIN_API_RESULT_OK.
 */
QORIN_API QORIN_API_RESULT qorin_system_controllable_get(QORIN_SWITCH* controllable);

QORIN_API_C_END

#endif
