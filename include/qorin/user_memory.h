/**
 * @file user_memory.h
 * User memory: values that a control box keeps by name, for its clients and programs to share; and a sleep there.
 *
 * @code
 * const char name[128] = "parts"; // 128 bytes are read from each pointer
 * const char no_text[128] = "";
 * QORIN_USER_DATA_TYPE type[32] = {};
 * int number[32] = {0};
 * char text[128] = ""; // 4 bytes come back: a number, not a text
 * char flag[128] = ""; // 4 bytes are written
 * double real[16] = {0.0};
 * long wide[16] = {0};
 * qorin_rpc_set_user_memory(cbox_id, name, QORIN_USER_DATA_TYPE_INT, 12, no_text, 0, 0.0, 0);
 * qorin_rpc_get_user_memory(cbox_id, name, type, number, text, flag, real, wide);
 * qorin_rpc_delete_user_memory(cbox_id, name);
 * @endcode
 *
 * A text can be kept and not read back: a reply has no room for texts. A value that a client is to read is a number.
 *
 * Everything here is a command: system.h tells what commands have in common. Each returns as every command does. The
 * control box answers among others
 *   - QORIN_API_RESULT_ERROR_KEY_NOT_FOUND for a name that it does not know,
 *   - QORIN_API_RESULT_ERROR_KEY_MAX_MEMORY when its user memory is full.
 */
#ifndef QORIN_USER_MEMORY_H
#define QORIN_USER_MEMORY_H

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/* User memory. */

/**
 * Keeps a value by a name.
 *
 * All values are sent; the type tells which one counts.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param name          key; 128 bytes are read, a longer key is cut.
 * @param type          which of the values counts.
 * @param int_value     value of QORIN_USER_DATA_TYPE_INT.
 * @param text_value    value of QORIN_USER_DATA_TYPE_STRING; 128 bytes are read.
 * @param char_value    value of QORIN_USER_DATA_TYPE_BOOL; sent sign-extended.
 * @param double_value  value of QORIN_USER_DATA_TYPE_DOUBLE.
 * @param long_value    value of QORIN_USER_DATA_TYPE_LONGLONG; its low 32 bits travel.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_set_user_memory(unsigned int cbox_id, const char* name, QORIN_USER_DATA_TYPE type,
                                                     int int_value, const char* text_value, char char_value,
                                                     double double_value, long long_value);

/**
 * Asks for a value by its name.
 *
 * @param cbox_id            control box id from qorin_rpc_system_cbox_connect().
 * @param name               key; 128 bytes are read, a longer key is cut.
 * @param[out] type          which of the values counts.
 * @param[out] int_value     what was kept for QORIN_USER_DATA_TYPE_INT.
 * @param[out] text_value    [4] 4 bytes, the 32-bit value 2 of the reply, and no text; what the control box puts there
 *                           is its own. Needs room for 4 bytes.
 * @param[out] char_value    what was kept for QORIN_USER_DATA_TYPE_BOOL. 4 bytes are written, so that it needs room for
 *                           them.
 * @param[out] double_value  what was kept for QORIN_USER_DATA_TYPE_DOUBLE.
 * @param[out] long_value    low 32 bits of what was kept for QORIN_USER_DATA_TYPE_LONGLONG. The upper half is left as
 *                           it was: a negative value needs a cast to int.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_get_user_memory(unsigned int cbox_id, const char* name, QORIN_USER_DATA_TYPE* type,
                                                     int* int_value, char* text_value, char* char_value,
                                                     double* double_value, long* long_value);

/**
 * Forgets a value.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param name     key; 128 bytes are read, a longer key is cut.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_delete_user_memory(unsigned int cbox_id, const char* name);

/**
 * Forgets all values.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_clear_user_memory(unsigned int cbox_id);

/* Timing. */

/**
 * Has the control box sleep, and returns when it has answered.
 *
 * All other commands of the process wait that long, as for every command; getters go on.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param time     how long to sleep; the control box defines the unit, milliseconds on the simulated one.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_rt_sleep(unsigned int cbox_id, unsigned int time);

QORIN_API_C_END

#endif
