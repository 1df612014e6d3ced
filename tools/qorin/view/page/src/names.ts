import { enumerations } from 'enumerations';

/** The member of an enumeration by its value, without the enumeration's name: `ON`. */
export function nameOf(enumeration: string, value: number): string {
  return enumerations[enumeration]?.[value] ?? String(value);
}

/** The same as words for people: `Profile completed`. */
export function wordsOf(enumeration: string, value: number): string {
  const words = nameOf(enumeration, value).replaceAll('_', ' ').toLowerCase();
  return words.charAt(0).toUpperCase() + words.slice(1);
}

export const ON = 400100;

export const eventGroups: Record<number, string> = {
  301000: 'Error',
  302000: 'Motion',
  303000: 'Safety limit',
  304000: 'Specification',
  305000: 'Collision',
  306000: 'Redundant I/O',
  307000: 'Button',
  308000: 'Notification',
  309000: 'Modbus',
};

const prefixes = /^(ERROR|MOTION_COMMAND|ROBOT_SAFETY|ROBOT_SPEC|ROBOT_COLLISION|ROBOT_REDUNDANT_IO|CONTROL_BOX_BUTTON_CHANGED|NOTIFICATION|MODBUS_NOTI)_/;

/** The name of an event without what its group says already. */
export function eventName(group: number, subgroup: number): string {
  const full = nameOf('QORIN_EVENT_SUBGRP', subgroup);
  if (full === String(subgroup)) return `${eventGroups[group] ?? `Group ${group}`} ${subgroup}`;
  const words = full.replace(prefixes, '').replaceAll('_', ' ').toLowerCase();
  return words.charAt(0).toUpperCase() + words.slice(1);
}

/** How serious an event is, as a class of the style sheet. */
export function eventTone(group: number, subgroup: number): string {
  if ([301000, 303000, 304000, 305000].includes(group)) return 'bad';
  if (group === 306000 || group === 307000 || [308003, 308005, 308006].includes(subgroup)) return 'warn';
  return group === 302000 ? 'move' : 'calm';
}
