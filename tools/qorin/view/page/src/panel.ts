import { joints } from './arm';
import { element, setText, setTone } from './element';
import { nameOf, wordsOf } from './names';
import { Status } from './status';

/** A number with so many places, without a minus in front of zero. */
function figure(value: number, places: number): string {
  const text = value.toFixed(places);
  return Number(text) === 0 ? (0).toFixed(places) : text.replace('-', '−');
}

/** A bar for a value between two limits, with a mark for the command, and narrower limits that are in force. */
class RangeBar {
  readonly node = element('div', 'bar');
  private readonly fill = element('i', 'fill');
  private readonly mark = element('i', 'mark');
  private readonly safe = element('i', 'safe');

  constructor() {
    this.node.append(this.safe, this.fill, this.mark);
  }

  show(value: number, [from, to]: [number, number], [safeFrom, safeTo]: [number, number], command?: number): void {
    const share = (at: number) => Math.min(Math.max(((at - from) / (to - from || 1)) * 100, 0), 100);
    const zero = share(0);
    const here = share(value);
    this.fill.style.left = `${Math.min(zero, here)}%`;
    this.fill.style.width = `${Math.abs(here - zero)}%`;
    this.safe.style.left = `${share(safeFrom)}%`;
    this.safe.style.width = `${share(safeTo) - share(safeFrom)}%`;
    this.mark.hidden = command === undefined;
    if (command !== undefined) this.mark.style.left = `${share(command)}%`;
    const room = Math.min(value - safeFrom, safeTo - value) / (to - from || 1);
    setTone(this.node, room < 0 ? 'bad' : room < 0.03 ? 'warn' : '');
  }
}

class JointRow {
  readonly node = element('tr');
  private readonly bar = new RangeBar();
  private readonly angle = element('td', 'figure');
  private readonly speed = element('td', 'figure dim');
  private readonly torque = element('td', 'figure dim');

  constructor(private readonly joint: number) {
    this.node.append(
      element('th', '', `J${joint}`),
      element('td', 'wide', this.bar.node),
      this.angle,
      this.speed,
      this.torque,
    );
  }

  show(status: Status, id: number): void {
    const at = (name: string, index = this.joint) => status.number(`robots.${id}.${name}`, index);
    const range = (name: string): [number, number] => [at(name), at(name, joints + this.joint)];
    setText(this.angle, figure(at('joint_angle'), 2));
    setText(this.speed, figure(at('joint_speed'), 1));
    setText(this.torque, figure(at('joint_torque'), 1));
    const specified = range('joint_range');
    const safe = status.isOn(`robots.${id}.safety_limit`) ? range('joint_safety_range') : specified;
    this.bar.show(at('joint_angle'), specified, safe, at('joint_angle_command'));
    const drive = `drive ${figure(at('joint_current'), 2)} A, ${figure(at('joint_temperature'), 1)} °C`;
    const title = `${figure(safe[0], 0)}° to ${figure(safe[1], 0)}°, ${drive}`;
    if (this.node.title !== title) this.node.title = title;
  }
}

/** A row of small lamps, one a channel. */
class Lamps {
  readonly node: HTMLElement;
  private readonly lamps: HTMLElement[];
  private shown = -1;

  constructor(
    title: string,
    count: number,
    private readonly field: string,
  ) {
    this.lamps = Array.from({ length: count }, (_, channel) => {
      const lamp = element('i', 'lamp');
      lamp.title = `${title} ${channel}`;
      return lamp;
    });
    this.node = element('div', 'lamps', element('span', 'caption', title), element('span', 'row', ...this.lamps));
  }

  show(status: Status): void {
    const bits = status.integer(this.field);
    if (bits === this.shown) return;
    this.shown = bits;
    this.lamps.forEach((lamp, channel) => lamp.classList.toggle('lit', ((bits >> channel) & 1) === 1));
  }
}

/** Names and values in two columns. */
class Facts {
  readonly node = element('dl', 'facts');
  private readonly values = new Map<string, HTMLElement>();

  show(name: string, text: string, tone = ''): void {
    let value = this.values.get(name);
    if (!value) {
      value = element('dd');
      this.values.set(name, value);
      this.node.append(element('div', '', element('dt', '', name), value));
    }
    setText(value, text);
    setTone(value, tone);
  }
}

const movingTones: Record<string, string> = { MOVING: 'move', PAUSED: 'warn', STOPPED: 'warn', EMG_STOPPED: 'bad' };
const axes = ['X', 'Y', 'Z', 'RX', 'RY', 'RZ'];
type Naming = (name: string) => string;

/** What is told of one robot, and the inputs and outputs. */
export class RobotPanel {
  robot = 0;
  private readonly facts = new Facts();
  private readonly rows = Array.from({ length: joints }, (_, joint) => new JointRow(joint));
  private readonly pose = axes.map(() => element('b', 'figure'));
  private readonly speed = element('b', 'figure');
  private readonly speedBar = new RangeBar();
  private readonly speedLimit = element('span', 'dim');
  private readonly force = element('div', 'dim figure');
  private readonly analog = element('div', 'analog');
  private readonly lamps = [
    new Lamps('Inputs', 16, 'box.digital_input'),
    new Lamps('Outputs', 16, 'box.digital_output'),
    new Lamps('Safety inputs', 8, 'box.safety_input'),
  ];
  private readonly toolLamps = [0, 1].map((id) => [
    new Lamps('Tool inputs', 4, `robots.${id}.tool_input`),
    new Lamps('Tool outputs', 4, `robots.${id}.tool_output`),
  ]);

  constructor(place: HTMLElement) {
    const units = ['', '', 'deg', 'deg/s', 'Nm'].map((unit) => element('th', '', unit));
    const rows = element('tbody', '', ...this.rows.map(({ node }) => node));
    const pose = this.pose.map((value, axis) =>
      element('div', '', element('span', 'caption', axes[axis]), value, element('span', 'dim', axis < 3 ? 'mm' : '°')),
    );
    const speed = [element('span', 'caption', 'Speed'), this.speedBar.node, this.speed, this.speedLimit];
    const lamps = [...this.lamps, ...this.toolLamps.flat()].map(({ node }) => node);
    place.append(
      card('State', this.facts.node),
      card('Joints', element('table', 'joints', element('thead', '', element('tr', 'head', ...units)), rows)),
      card('TCP', element('div', 'pose', ...pose), element('div', 'speed', ...speed), this.force),
      card('Inputs and outputs', element('div', 'io', ...lamps), this.analog),
    );
  }

  show(status: Status): void {
    const id = this.robot;
    const at = (name: string) => `robots.${id}.${name}`;
    this.showState(status, at);
    const count = status.integer(at('joints'));
    this.rows.forEach((row, joint) => {
      row.node.hidden = joint >= count;
      if (joint < count) row.show(status, id);
    });
    this.showTcp(status, at);
    for (const lamps of this.lamps) lamps.show(status);
    for (const [robot, pair] of this.toolLamps.entries())
      for (const lamps of pair) {
        lamps.node.hidden = robot !== id;
        lamps.show(status);
      }
    const volts = (name: string) => Array.from(status.numbers(name), (value) => figure(value, 2)).join('   ');
    setText(this.analog, `Analog  in ${volts('box.analog_input')}   out ${volts('box.analog_output')}`);
  }

  private showState(status: Status, at: Naming): void {
    const moving = status.integer(at('moving'));
    const isSafe = nameOf('QORIN_ROBOT_SAFETY_STATE', status.integer(at('safety'))) === 'SAFE';
    const servo = status.isOn(at('servo'));
    const payload = status.number(at('payload'));
    const tone = movingTones[nameOf('QORIN_MOVING_STATE', moving)] ?? '';
    this.facts.show('Motion', wordsOf('QORIN_MOVING_STATE', moving), tone);
    this.facts.show('Command', status.text(at('motion_name')) || '–');
    this.facts.show('Servo', servo ? 'On' : 'Off', servo ? 'good' : '');
    this.facts.show('Speed factor', `${figure(status.number(at('speed_factor')) * 100, 0)} %`);
    this.facts.show('Safety', isSafe ? 'Safe' : 'Not safe', isSafe ? 'good' : 'bad');
    this.facts.show('Payload', payload > 0 ? `${figure(payload, 2)} kg` : '–');
    this.facts.show('Control mode', wordsOf('QORIN_DRIVE_CONTROL_MODE', status.integer(at('control_mode'))));
    this.facts.show('Active', activities(status, at));
  }

  private showTcp(status: Status, at: Naming): void {
    const pose = status.numbers(at('tcp'));
    this.pose.forEach((node, axis) => setText(node, figure(pose[axis], axis < 3 ? 1 : 2)));
    const speed = Math.hypot(...status.numbers(at('tcp_speed')));
    const specified = status.number(at('tcp_speed_max'));
    const safe = status.isOn(at('safety_limit')) ? status.number(at('tcp_safety_speed_max')) : 0;
    const limit = safe || specified || 1;
    this.speedBar.show(speed, [0, Math.max(specified, limit)], [-limit, limit]);
    setText(this.speed, figure(speed, 1));
    setText(this.speedLimit, `of ${figure(limit, 0)} mm/s`);
    this.force.hidden = !status.isOn(at('force_sensor'));
    const force = Array.from(status.numbers(at('force')), (value) => figure(value, 1)).join('   ');
    setText(this.force, `Force  ${force}  N`);
  }
}

function activities(status: Status, at: Naming): string {
  const names: [string, string][] = [
    ['safety_limit', 'safety limits'],
    ['bounding_shape', 'TCP shape'],
    ['collision_detection', 'collision detection'],
    ['force_control', 'force control'],
    ['joint_chaser', 'joint chaser'],
    ['external_profiler', 'external profiler'],
  ];
  const active = names.filter(([field]) => status.isOn(at(field))).map(([, name]) => name);
  return active.join(', ') || '–';
}

function card(title: string, ...content: Node[]): HTMLElement {
  return element('section', 'card', element('h2', '', title), ...content);
}
