/** The status of a control box at a time: words of 32 bits, which binary messages change. */

export interface Field {
  name: string;
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

export enum LinkState {
  connecting,
  connected,
  silent,
  lost,
}

export enum RobotState {
  none,
  attached,
  noModule,
}

export class Status {
  time = 0;
  private readonly offsets = new Map<string, number>();
  private readonly counts = new Map<string, number>();
  private readonly integers: Uint32Array;
  private readonly floats: Float32Array;
  private readonly bytes: Uint8Array;

  constructor(readonly hello: Hello) {
    let offset = 0;
    for (const field of hello.fields) {
      this.offsets.set(field.name, offset);
      this.counts.set(field.name, field.count);
      offset += field.count;
    }
    this.integers = new Uint32Array(offset);
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

  has(name: string): boolean {
    return this.offsets.has(name);
  }

  integer(name: string): number {
    return this.integers[this.offset(name)] ?? 0;
  }

  isOn(name: string): boolean {
    return this.integer(name) === 400100;
  }

  number(name: string, index = 0): number {
    return this.floats[this.offset(name) + index] ?? 0;
  }

  /** A view: what it shows changes with the next message. */
  numbers(name: string): Float32Array {
    const begin = this.offset(name);
    return this.floats.subarray(begin, begin + (this.counts.get(name) ?? 0));
  }

  text(name: string): string {
    const begin = 4 * this.offset(name);
    const all = this.bytes.subarray(begin, begin + 4 * (this.counts.get(name) ?? 0));
    const end = all.indexOf(0);
    return new TextDecoder().decode(end < 0 ? all : all.subarray(0, end));
  }

  get link(): LinkState {
    return this.integer('link.state');
  }

  /** The robots that can be shown. */
  get robots(): number[] {
    return [0, 1].filter((id) => this.integer(`robots.${id}.state`) === RobotState.attached);
  }

  private offset(name: string): number {
    return this.offsets.get(name) ?? this.integers.length;
  }
}
