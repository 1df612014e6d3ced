/** A member of an enumeration as words for people: `Profile completed` of PROFILE_COMPLETED. */
export function wordsOf(member: string): string {
  const words = member.replace(/^EMG_/, 'EMERGENCY_').replaceAll('_', ' ').toLowerCase();
  return words === '' ? '–' : words.charAt(0).toUpperCase() + words.slice(1);
}

export const eventGroups: Record<string, string> = {
  ERROR: 'Error',
  MOTION_COMMAND: 'Motion',
  ROBOT_SAFETY_VIOLATED: 'Safety limit',
  ROBOT_SPEC_VIOLATED: 'Specification',
  ROBOT_COLLISION_DETECTED: 'Collision',
  ROBOT_REDUNDANT_IO: 'Redundant I/O',
  CONTROL_BOX_BUTTON_CHANGED: 'Button',
  NOTIFICATION: 'Notification',
  MODBUS_NOTI: 'Modbus',
};

const prefixes = /^(ERROR|MOTION_COMMAND|ROBOT(?=_SAFETY_MODULE_)|ROBOT_SAFETY|ROBOT_SPEC|ROBOT_COLLISION|ROBOT_REDUNDANT_IO|CONTROL_BOX_BUTTON_CHANGED|NOTIFICATION|MODBUS_NOTI)_/;

/** The name of an event without what its group says already. */
export function eventName(group: string, name: string): string {
  if (/^\d*$/.test(name)) return `${eventGroups[group] ?? `Group ${group}`} ${name}`;
  return wordsOf(name.replace(prefixes, ''));
}

const serious = ['ERROR', 'ROBOT_SAFETY_VIOLATED', 'ROBOT_SPEC_VIOLATED', 'ROBOT_COLLISION_DETECTED'];
const noted = ['ROBOT_REDUNDANT_IO', 'CONTROL_BOX_BUTTON_CHANGED'];
const notedEvents = [
  'NOTIFICATION_SYSTEM_FAIL_TO_INITIALIZED',
  'NOTIFICATION_ECAT_DISCONNECTED',
  'NOTIFICATION_CONTROL_SW_EXIT',
  'NOTIFICATION_DYNAMICS_CALIBRATION_NOT_COMPLETED',
  'MODBUS_NOTI_WELDER_ERROR',
];

/** How serious an event is, as a class of the style sheet. */
export function eventTone(group: string, name: string): string {
  if (serious.includes(group)) return 'bad';
  if (noted.includes(group) || notedEvents.includes(name)) return 'warn';
  return group === 'MOTION_COMMAND' ? 'move' : 'calm';
}
