/** The status of a control box at a time: words of 32 bits, which binary messages change. */

export interface Field {
  name: string;
  unit: string;
  type: 'number' | 'integer' | 'text';
  count: number;
}

export interface Hello {
  format: number;
  name: string;
  library: string;
  control_software: string;
  rate: number;
  duration: number;
  fields: Field[];
}

export const joints = 6;
const axes = ['x', 'y', 'z', 'rx', 'ry', 'rz'];
const decoder = new TextDecoder();

export class Status {
  time = 0;
  private readonly fields = new Map<string, { at: number; count: number }>();
  private readonly integers: Uint32Array;
  private readonly floats: Float32Array;
  private readonly bytes: Uint8Array;

  constructor(readonly hello: Hello) {
    let at = 0;
    for (const { name, count } of hello.fields) {
      this.fields.set(name, { at, count });
      at += count;
    }
    this.integers = new Uint32Array(at);
    this.floats = new Float32Array(this.integers.buffer);
    this.bytes = new Uint8Array(this.integers.buffer);
  }

  /** Takes a message: time, a bit for each word, the words that have changed. */
  apply(message: ArrayBuffer): void {
    const view = new DataView(message);
    this.time = view.getFloat64(0, true);
    const bits = new Uint8Array(message, 8, Math.ceil(this.integers.length / 8));
    let at = 8 + bits.length;
    for (let byte = 0; byte < bits.length; ++byte)
      for (let rest = bits[byte], word = 8 * byte; rest !== 0; rest >>= 1, ++word)
        if (rest & 1) {
          this.integers[word] = view.getUint32(at, true);
          at += 4;
        }
  }

  get isRecorded(): boolean {
    return this.hello.duration > 0;
  }

  has(name: string): boolean {
    return this.fields.has(name);
  }

  /** The channels of a field of bits. */
  bits(name: string): number {
    const field = this.fields.get(name);
    return field ? this.integers[field.at] : 0;
  }

  /** No number where there is none. */
  number(name: string): number {
    const field = this.fields.get(name);
    return field ? this.floats[field.at] : NaN;
  }

  /** A text, or a member of an enumeration as `MOVING`; empty where there is none. */
  text(name: string): string {
    const field = this.fields.get(name);
    if (!field) return '';
    const all = this.bytes.subarray(4 * field.at, 4 * (field.at + field.count));
    const end = all.indexOf(0);
    return decoder.decode(end < 0 ? all : all.subarray(0, end));
  }

  isOn(name: string): boolean {
    return this.text(name) === 'ON';
  }

  /** What a field tells of each joint of a robot. */
  ofJoints(robot: number, name: string): number[] {
    return Array.from({ length: joints }, (_, joint) => this.number(`robot${robot}.joint${joint}.${name}`));
  }

  /** x, y and z of what begins so. */
  vector(name: string): number[] {
    return axes.slice(0, 3).map((axis) => this.number(`${name}.${axis}`));
  }

  /** Millimetres, and degrees with the rotation Rz * Ry * Rx. */
  pose(name: string): number[] {
    return axes.map((axis) => this.number(`${name}.${axis}`));
  }

  /** How fast the TCP of a robot is, in millimetres a second. */
  speed(robot: number): number {
    return Math.hypot(...this.vector(`robot${robot}.tcp_speed`));
  }

  /** CONNECTING, CONNECTED, SILENT or LOST; a recording has none. */
  get link(): string {
    return this.isRecorded ? 'CONNECTED' : this.text('link.state');
  }

  /** The robots that can be shown. */
  get robots(): number[] {
    return [0, 1].filter((id) => this.text(`robot${id}.standing`) === 'KNOWN');
  }

  get robotsWithoutModule(): number[] {
    return [0, 1].filter((id) => this.text(`robot${id}.standing`) === 'NO_MODULE');
  }
}
