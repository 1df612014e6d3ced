import { element, setText, setTone } from './element';
import { wordsOf } from './names';
import { joints, Status } from './status';

/** A number with so many places, without a minus in front of zero. */
function figure(value: number, places: number): string {
  if (isNaN(value)) return '–';
  const text = value.toFixed(places);
  return Number(text) === 0 ? (0).toFixed(places) : text.replace('-', '−');
}

type Range = [number, number];
const fullTurn: Range = [-360, 360];

/** A bar for a value between two limits, with a mark for the command, and narrower limits that are in force. */
class RangeBar {
  readonly node = element('div', 'bar');
  private readonly fill = element('i', 'fill');
  private readonly mark = element('i', 'mark');
  private readonly safe = element('i', 'safe');

  constructor() {
    this.node.append(this.safe, this.fill, this.mark);
  }

  show(value: number, [from, to]: Range, [safeFrom, safeTo]: Range, command = NaN): void {
    const share = (at: number) => Math.min(Math.max(((at - from) / (to - from || 1)) * 100, 0), 100);
    const zero = share(0);
    const here = share(value);
    this.fill.style.left = `${Math.min(zero, here)}%`;
    this.fill.style.width = `${Math.abs(here - zero)}%`;
    this.safe.style.left = `${share(safeFrom)}%`;
    this.safe.style.width = `${share(safeTo) - share(safeFrom)}%`;
    this.mark.hidden = isNaN(command);
    if (!isNaN(command)) this.mark.style.left = `${share(command)}%`;
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
    const at = (name: string) => status.number(`robot${id}.joint${this.joint}.${name}`);
    // A control box gives the ends in either order, and a recording may have none.
    const range = (name: string, otherwise: Range): Range => {
      const ends = [at(`${name}_1`), at(`${name}_2`)].sort((one, other) => one - other);
      return ends.some(isNaN) || ends[0] === ends[1] ? otherwise : [ends[0], ends[1]];
    };
    setText(this.angle, figure(at('angle'), 2));
    setText(this.speed, figure(at('speed'), 1));
    setText(this.torque, figure(at('torque'), 1));
    const inForce = status.isOn(`robot${id}.safety_limits`);
    const safety = range('safety_angle', fullTurn);
    const specified = range('spec_angle', safety);
    const safe = inForce ? range('safety_angle', specified) : specified;
    this.bar.show(at('angle'), specified, safe, at('angle_command'));
    const errors = status.text(`robot${id}.joint${this.joint}.errors`);
    const isFaulty = errors !== '' && errors !== '0';
    setTone(this.node, isFaulty ? 'bad' : '');
    const drive = `drive ${figure(at('current'), 2)} A, ${figure(at('voltage'), 1)} V, ${figure(at('temperature'), 1)} °C`;
    const fault = isFaulty ? `, error ${errors}` : '';
    const title = `${figure(safe[0], 0)}° to ${figure(safe[1], 0)}°, ${drive}${fault}`;
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

  show(status: Status, isChosen = true): void {
    this.node.hidden = !isChosen || !status.has(this.field);
    const bits = status.bits(this.field);
    if (bits === this.shown) return;
    this.shown = bits;
    this.lamps.forEach((lamp, channel) => lamp.classList.toggle('lit', ((bits >> channel) & 1) === 1));
  }
}

/** Names and values in two columns. */
class Facts {
  readonly node: HTMLElement;
  private readonly values = new Map<string, HTMLElement>();

  constructor(className = '') {
    this.node = element('dl', `facts ${className}`);
  }

  show(name: string, text: string, tone = ''): void {
    let value = this.values.get(name);
    if (!value) {
      value = element('dd');
      this.values.set(name, value);
      this.node.append(element('div', '', element('dt', '', name), value));
    }
    setText(value, text);
    setTone(value, tone);
    if (value.title !== text) value.title = text; // of which the end may not be in sight
  }
}

const movingTones: Record<string, string> = {
  MOVING: 'move', PAUSING: 'warn', PAUSED: 'warn', STOPPING: 'warn', STOPPED: 'warn', EMG_STOPPING: 'bad', EMG_STOPPED: 'bad',
};
const axes = ['X', 'Y', 'Z', 'RX', 'RY', 'RZ'];
type Naming = (name: string) => string;

/** What is told of one robot, and the inputs and outputs. */
export class RobotPanel {
  robot = 0;
  private readonly facts = new Facts('wide');
  private readonly box = new Facts();
  private readonly rows = Array.from({ length: joints }, (_, joint) => new JointRow(joint));
  private readonly pose = axes.map(() => element('b', 'figure'));
  private readonly speed = element('b', 'figure');
  private readonly speedBar = new RangeBar();
  private readonly speedLimit = element('span', 'dim');
  private readonly force = element('div', 'dim figure');
  private readonly analog = element('div', 'analog');
  private readonly lamps = [
    new Lamps('Inputs', 16, 'cbox.digital_inputs'),
    new Lamps('Outputs', 16, 'cbox.digital_outputs'),
    new Lamps('Redundant in', 16, 'cbox.redundant_inputs'),
    new Lamps('Redundant out', 16, 'cbox.redundant_outputs'),
    new Lamps('Safety inputs', 8, 'cbox.safety_inputs'),
  ];
  private readonly toolLamps = [0, 1].map((id) => [
    new Lamps('Tool inputs', 4, `robot${id}.tool_inputs`),
    new Lamps('Tool outputs', 4, `robot${id}.tool_outputs`),
  ]);

  constructor(place: HTMLElement) {
    const units = ['', '', 'deg', 'deg/s', 'torque'].map((unit) => element('th', '', unit));
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
      card('Control box', this.box.node),
    );
  }

  show(status: Status): void {
    const id = this.robot;
    const at = (name: string) => `robot${id}.${name}`;
    this.showState(status, at);
    for (const [joint, row] of this.rows.entries()) {
      row.node.hidden = isNaN(status.number(at(`joint${joint}.angle`)));
      if (!row.node.hidden) row.show(status, id);
    }
    this.showTcp(status, at);
    for (const lamps of this.lamps) lamps.show(status);
    for (const [robot, pair] of this.toolLamps.entries())
      for (const lamps of pair) lamps.show(status, robot === id);
    const analog = (name: string) => [0, 1].map((channel) => figure(status.number(`${name}${channel}`), 2)).join('   ');
    setText(this.analog, `Analog  in ${analog('cbox.analog_input')}   out ${analog('cbox.analog_output')}   tool ${analog(at('tool_analog_input'))}`);
    this.showBox(status);
  }

  private showState(status: Status, at: Naming): void {
    const text = (name: string) => status.text(at(name));
    const factor = status.number(at('speed_factor')) * 100;
    const payload = status.number(at('payload.mass'));
    this.facts.show('Motion', wordsOf(text('moving')), movingTones[text('moving')]);
    this.facts.show('Command', text('motion') || '–');
    this.facts.show('Servo', wordsOf(text('servo')), text('servo') === 'ON' ? 'good' : '');
    this.facts.show('Speed factor', isNaN(factor) ? '–' : `${figure(factor, 0)} %`);
    this.facts.show('Safety', wordsOf(text('safety')), { SAFE: 'good', NOT_SAFE: 'bad' }[text('safety')]);
    this.facts.show('Payload', payload > 0 ? `${figure(payload, 2)} kg` : '–');
    this.facts.show('Drives', wordsOf(text('control_mode')));
    this.facts.show('Active', activities(status, at));
  }

  private showTcp(status: Status, at: Naming): void {
    const pose = status.pose(at('tcp'));
    this.pose.forEach((node, axis) => setText(node, figure(pose[axis], axis < 3 ? 1 : 2)));
    const speed = status.speed(this.robot);
    const specified = status.number(at('spec_tcp_speed')) || 0;
    const safe = status.isOn(at('safety_limits')) ? status.number(at('safety_tcp_speed')) : 0;
    const limit = safe || specified;
    this.speedBar.node.hidden = this.speedLimit.hidden = limit === 0;
    this.speedBar.show(speed, [0, Math.max(specified, limit)], [-limit, limit]);
    setText(this.speed, `${figure(speed, 1)}${limit === 0 ? ' mm/s' : ''}`);
    setText(this.speedLimit, `of ${figure(limit, 0)} mm/s`);
    this.force.hidden = !status.isOn(at('force_sensor'));
    const three = (name: string) => status.vector(at(name)).map((value) => figure(value, 1)).join('   ');
    setText(this.force, `Force  ${three('force')}  N    Torque  ${three('torque')}  Nm`);
  }

  private showBox(status: Status): void {
    this.box.show('Model', status.text('cbox.model') || '–');
    this.box.show('Mode', wordsOf(status.text('cbox.operational_mode')));
    this.box.show('Power button', wordsOf(status.text('cbox.power_button')));
    this.box.show('48 V supply', wordsOf(status.text('cbox.supply_48v')));
  }
}

function activities(status: Status, at: Naming): string {
  const names: [string, string][] = [
    ['safety_limits', 'safety limits'],
    ['bounding_shape', 'TCP shape'],
    ['collision_detection', 'collision detection'],
    ['force_control', 'force control'],
    ['joint_chaser', 'joint chaser'],
    ['external_profiler', 'external profiler'],
    ['conveyor', 'conveyor'],
  ];
  const active = names.filter(([field]) => status.isOn(at(field))).map(([, name]) => name);
  return active.join(', ') || '–';
}

function card(title: string, ...content: Node[]): HTMLElement {
  return element('section', 'card', element('h2', '', title), ...content);
}
