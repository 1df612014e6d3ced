/**
 * @file cbox.h
 * State of the control box.
 *
 * Getters. Each function here reads the status mirror, the latest frame that the control box has streamed: it takes no
 * lock, writes no line, sends nothing and does not block, so it may run beside a command that blocks in another thread.
 * The mirror stands still when the data link is lost, and getters go on answering from it. Each getter has a local form
 * without cbox_id, which reads the control box that was asked last by any thread. Two threads that read different
 * control boxes at the same moment can read each other's.
 */
#ifndef QORIN_CBOX_H
#define QORIN_CBOX_H

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/**
 * A digital input of the control box's first I/O module.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param channel  input channel, 0 to 15.
 * @param value    output: 0 or 1. Untouched unless the result is OK.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 *         QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_io_digital_input_get(unsigned int cbox_id, unsigned int channel,
                                                               unsigned int* value);

/**
 * A digital input of the first I/O module of the control box that was asked last.
 *
 * @param channel  input channel, 0 to 15.
 * @param value    output: 0 or 1. Untouched unless the result is OK.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER when channel is out of range;
 *         QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_io_digital_input_get(unsigned int channel, unsigned int* value);

QORIN_API_C_END

#endif
