/**
 * @file event.h
 * Events that a control box pushes: callbacks, waits and the queue of past events.
 *
 * Each control box has a dispatcher. For every event it writes a line to the event log, calls the registered callbacks
 * and then puts the event into a queue of the latest 513, whether or not anyone wants it.
 *
 * Callbacks run on the event thread of their control box, one at a time and in three passes, each in order of
 * registration: those for all events, those for the event's group, those for its subgroup. A callback that is
 * registered in several places is called several times for one event. Events end without notice when the event link or
 * the data link is lost.
 *
 * The line in the event log is written and flushed ahead of the callbacks, as fast as events come. Log files change
 * with the number of calls alone, so that an application which does nothing but listen fills one file without end: it
 * should keep an eye on it, or send a command now and then.
 *
 * The dispatcher is locked while callbacks run. So a callback
 *   - must return soon: no further event comes through, and waits and registrations of other threads stand still;
 *   - must not throw: an exception that leaves it ends the process;
 *   - must not call a function of this header for its own control box, except qorin_rpc_ts_event_echo(): it would block
 *     for ever;
 *   - may send commands, which wait for the call lock like any other. But while a callback does, no other thread may
 *     register or remove callbacks of the same control box: a registration holds the call lock while it waits for the
 *     dispatcher, and the two would wait for each other for ever. Register before the events begin, or let the callback
 *     hand its work to a thread of the application.
 *
 * Callbacks run with all signals blocked, which programs that they start inherit.
 *
 * A registration with an unknown cbox_id is no error: it answers QORIN_API_RESULT_OK and registers nothing. What a
 * subgroup callback gets depends on the subgroup alone; waits compare group and subgroup together.
 */
#ifndef QORIN_EVENT_H
#define QORIN_EVENT_H

#include "qorin/event_codes.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/**
 * A function that receives events.
 *
 * @param group      a QORIN_EVENT_GRP value.
 * @param subgroup   a QORIN_EVENT_SUBGRP value.
 * @param sender_id  meaning depends on the event.
 * @param p1         first of five integers whose meaning depends on the event.
 * @param p2         second of them.
 * @param p3         third of them.
 * @param p4         fourth of them.
 * @param p5         fifth of them.
 */
typedef void (*qorin_event_callback)(unsigned int group, unsigned int subgroup, unsigned int sender_id, int p1, int p2,
                                     int p3, int p4, int p5);

/**
 * Registers a callback for all events. A callback that is registered so already is not added again.
 *
 * Writes a call line and takes the call lock, hence waits for a command that blocks; sends nothing. Any thread.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param callback  function to call; not null.
 * @return QORIN_API_RESULT_OK, also for an unknown cbox_id.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_system_event_callback_add(unsigned int cbox_id, qorin_event_callback callback);

/**
 * Takes a callback off the list for all events. One that is not there changes nothing.
 *
 * Locks, line and thread as qorin_rpc_system_event_callback_add(). No call of it is running when this returns.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param callback  function that was registered.
 * @return QORIN_API_RESULT_OK, also for an unknown cbox_id.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_system_event_callback_remove(unsigned int cbox_id, qorin_event_callback callback);

/**
 * Registers a callback for the events of a group. A callback that is added twice is called twice.
 *
 * Locks, line and thread as qorin_rpc_system_event_callback_add().
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param callback  function to call; not null.
 * @param group     a QORIN_EVENT_GRP value; any number is taken.
 * @return QORIN_API_RESULT_OK, also for an unknown cbox_id.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_system_event_group_callback_add(unsigned int cbox_id,
                                                                     qorin_event_callback callback, unsigned int group);

/**
 * Takes the callback that was registered first for a group off its list, whichever one that is.
 *
 * Locks, line and thread as qorin_rpc_system_event_callback_add().
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param callback  not looked at; it shows in the call line.
 * @param group     group whose list loses its first callback, a QORIN_EVENT_GRP value.
 * @return QORIN_API_RESULT_OK, also for an unknown cbox_id and an empty list.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_system_event_group_callback_remove(unsigned int cbox_id,
                                                                        qorin_event_callback callback,
                                                                        unsigned int group);

/**
 * Registers a callback for the events of a subgroup, of whatever group they are. A callback that is added twice is
 * called twice.
 *
 * Locks, line and thread as qorin_rpc_system_event_callback_add().
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param callback  function to call; not null.
 * @param group     shows in the call line only.
 * @param subgroup  a QORIN_EVENT_SUBGRP value; any number is taken.
 * @return QORIN_API_RESULT_OK, also for an unknown cbox_id.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_system_event_group_subgroup_callback_add(unsigned int cbox_id,
                                                                              qorin_event_callback callback,
                                                                              unsigned int group,
                                                                              unsigned int subgroup);

/**
 * Takes the callback that was registered first for a subgroup off its list, whichever one that is.
 *
 * Locks, line and thread as qorin_rpc_system_event_callback_add().
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param callback  not looked at; it shows in the call line.
 * @param group     shows in the call line only.
 * @param subgroup  subgroup whose list loses its first callback, a QORIN_EVENT_SUBGRP value.
 * @return QORIN_API_RESULT_OK, also for an unknown cbox_id and an empty list.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_system_event_group_subgroup_callback_remove(unsigned int cbox_id,
                                                                                 qorin_event_callback callback,
                                                                                 unsigned int group,
                                                                                 unsigned int subgroup);

/**
 * Waits for an event of a group in the queue of past events, oldest first.
 *
 * An event from before the call satisfies the wait: who wants new ones alone calls qorin_rpc_system_event_queue_clear()
 * first. Looks at the queue once a millisecond, at least twice, also with a time-out of 0. Takes no call lock and
 * writes no line, so other threads go on commanding; stands still while a callback runs. Any number of threads may
 * wait.
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param group          group to wait for, a QORIN_EVENT_GRP value.
 * @param time_out       milliseconds.
 * @param remove         not 0: the event is taken out of the queue, so that one waiter alone gets it.
 * @param[out] occurred  one byte: 1 when a matching event was found, 0 when the time ran out. Not null.
 * @return QORIN_API_RESULT_OK, also when the time ran out, and for an unknown cbox_id, which leaves `occurred`
 * untouched and answers at once.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_system_wait_event_group(unsigned int cbox_id, unsigned int group,
                                                             unsigned int time_out, char remove, char* occurred);

/**
 * Waits for an event of a group and subgroup; see qorin_rpc_system_wait_event_group().
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param group          group to wait for, a QORIN_EVENT_GRP value.
 * @param subgroup       subgroup to wait for, together with the group; a QORIN_EVENT_SUBGRP value.
 * @param time_out       milliseconds.
 * @param remove         not 0: the event is taken out of the queue.
 * @param[out] occurred  one byte: 1 when a matching event was found, 0 when the time ran out. Not null.
 * @return as qorin_rpc_system_wait_event_group().
 */
QORIN_API QORIN_API_RESULT qorin_rpc_system_wait_event_group_subgroup(unsigned int cbox_id, unsigned int group,
                                                                      unsigned int subgroup, unsigned int time_out,
                                                                      char remove, char* occurred);

/**
 * Waits for an event of a group and subgroup from one sender; see qorin_rpc_system_wait_event_group().
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param group          group to wait for, a QORIN_EVENT_GRP value.
 * @param subgroup       subgroup to wait for, together with the group; a QORIN_EVENT_SUBGRP value.
 * @param sender_id      sender to wait for, together with both.
 * @param time_out       milliseconds.
 * @param remove         not 0: the event is taken out of the queue.
 * @param[out] occurred  one byte: 1 when a matching event was found, 0 when the time ran out. Not null.
 * @return as qorin_rpc_system_wait_event_group().
 */
QORIN_API QORIN_API_RESULT qorin_rpc_system_wait_event_group_subgroup_sender_id(
    unsigned int cbox_id, unsigned int group, unsigned int subgroup, unsigned int sender_id, unsigned int time_out,
    char remove, char* occurred);

/**
 * Forgets all past events of a control box. No call lock, no line, does not block but while a callback runs.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @return QORIN_API_RESULT_OK, also for an unknown cbox_id.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_system_event_queue_clear(unsigned int cbox_id);

/**
 * Asks the control box to send an event back, for tests. It arrives like any other. A command, as told in system.h:
 * blocks until the reply has come.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param group      group of the event, a QORIN_EVENT_GRP value.
 * @param subgroup   subgroup of the event, a QORIN_EVENT_SUBGRP value.
 * @param sender_id  sender of the event.
 * @param p1         first of the five integers.
 * @param p2         second of them.
 * @param p3         third of them.
 * @param p4         fourth of them.
 * @param p5         fifth of them.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_ts_event_echo(unsigned int cbox_id, unsigned int group, unsigned int subgroup,
                                                   unsigned int sender_id, int p1, int p2, int p3, int p4, int p5);

/**
 * Does nothing: in a client, events come from a control box, and only the forms with a cbox_id reach one.
 *
 * @param group          ignored.
 * @param time_out       ignored.
 * @param remove         ignored.
 * @param[out] occurred  untouched.
 * @return QORIN_API_RESULT_OK at once.
 */
QORIN_API QORIN_API_RESULT qorin_system_wait_event_group(unsigned int group, unsigned int time_out, char remove,
                                                         char* occurred);

/**
 * Does nothing; see qorin_system_wait_event_group().
 *
 * @param group          ignored.
 * @param subgroup       ignored.
 * @param time_out       ignored.
 * @param remove         ignored.
 * @param[out] occurred  untouched.
 * @return QORIN_API_RESULT_OK at once.
 */
QORIN_API QORIN_API_RESULT qorin_system_wait_event_group_subgroup(unsigned int group, unsigned int subgroup,
                                                                  unsigned int time_out, char remove, char* occurred);

/**
 * Does nothing; see qorin_system_wait_event_group().
 *
 * @param group          ignored.
 * @param subgroup       ignored.
 * @param sender_id      ignored.
 * @param time_out       ignored.
 * @param remove         ignored.
 * @param[out] occurred  untouched.
 * @return QORIN_API_RESULT_OK at once.
 */
QORIN_API QORIN_API_RESULT qorin_system_wait_event_group_subgroup_sender_id(unsigned int group, unsigned int subgroup,
                                                                            unsigned int sender_id,
                                                                            unsigned int time_out, char remove,
                                                                            char* occurred);

/**
 * Does nothing; see qorin_system_wait_event_group().
 *
 * @return QORIN_API_RESULT_OK at once.
 */
QORIN_API QORIN_API_RESULT qorin_system_event_queue_clear(void);

QORIN_API_C_END

#endif
