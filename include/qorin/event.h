/**
 * @file event.h
 * Events that a control box pushes.
 */
#ifndef QORIN_EVENT_H
#define QORIN_EVENT_H

#include "qorin/event_codes.h"
#include "qorin/export.h"

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

QORIN_API_C_END

#endif
