import { Color } from 'three';
import { LineMaterial } from 'three/examples/jsm/lines/LineMaterial.js';
import { LineSegments2 } from 'three/examples/jsm/lines/LineSegments2.js';
import { LineSegmentsGeometry } from 'three/examples/jsm/lines/LineSegmentsGeometry.js';

const lasting = 60; // seconds
const apart = 0.5; // millimetres, between points that are kept
const limit = 4096;

/** From slow to fast: blue, green, yellow, red. */
const stops = ['#3b6fd4', '#2fa98c', '#e0b03a', '#d9483b'].map((colour) => new Color(colour));

function colourOf(share: number): Color {
  const place = Math.min(Math.max(share, 0), 1) * (stops.length - 1);
  const below = Math.min(Math.floor(place), stops.length - 2);
  return stops[below].clone().lerp(stops[below + 1], place - below);
}

/** Where a TCP has been in the last minute, coloured by how fast it was. */
export class Trace extends LineSegments2 {
  // Segments in a ring: in which order they are drawn does not matter, and an old one has no length.
  private readonly corners = new Float32Array(6 * limit);
  private readonly colours = new Float32Array(6 * limit);
  private readonly times = new Float64Array(limit);
  private begin = 0;
  private end = 0;
  private last?: { time: number; place: number[]; colour: number[] };

  constructor() {
    super(new LineSegmentsGeometry(), new LineMaterial({ linewidth: 3, vertexColors: true }));
    this.geometry.setPositions(this.corners);
    this.geometry.setColors(this.colours);
    this.frustumCulled = false;
  }

  follow(time: number, place: number[], speed: number, fullSpeed: number): void {
    if (this.last && (time < this.last.time || time > this.last.time + 5)) this.forget();
    while (this.begin < this.end && this.times[this.begin % limit] < time - lasting) this.drop();
    const next = { time, place, colour: colourOf((speed || 0) / fullSpeed).toArray() };
    if (!this.last) this.last = next;
    this.last.time = time;
    if (Math.hypot(...next.place.map((value, axis) => value - this.last!.place[axis])) < apart) return;
    if (this.end - this.begin === limit) this.drop();
    const slot = this.end++ % limit;
    this.times[slot] = time;
    this.corners.set([...this.last.place, ...next.place], 6 * slot);
    this.colours.set([...this.last.colour, ...next.colour], 6 * slot);
    this.last = next;
    this.changed();
  }

  forget(): void {
    this.begin = this.end = 0;
    this.last = undefined;
    this.corners.fill(0);
    this.changed();
  }

  private drop(): void {
    const at = 6 * (this.begin++ % limit);
    this.corners.copyWithin(at + 3, at, at + 3);
    this.changed();
  }

  private changed(): void {
    for (const name of ['instanceStart', 'instanceColorStart']) {
      const attribute = this.geometry.getAttribute(name) as unknown as { data: { needsUpdate: boolean } };
      attribute.data.needsUpdate = true;
    }
    this.geometry.instanceCount = Math.min(this.end, limit);
  }
}
