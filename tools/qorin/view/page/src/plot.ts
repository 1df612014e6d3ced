import uPlot from 'uplot';
import 'uplot/dist/uPlot.min.css';
import { element, setText } from './element';
import { joints, Status } from './status';

const lasting = 60; // seconds
const colours = ['#3e8bff', '#1f9d8f', '#e0a13a', '#d9483b', '#7a6ad8', '#8b929c'];

interface Quantity {
  name: string;
  unit: string;
  series: string[];
  read(status: Status, id: number): number[];
}

function perJoint(name: string, unit: string, field: string): Quantity {
  return {
    name,
    unit,
    series: Array.from({ length: joints }, (_, joint) => `J${joint}`),
    read: (status, id) => status.ofJoints(id, field),
  };
}

function ofAxes(name: string, unit: string, field: string): Quantity {
  return {
    name,
    unit,
    series: ['X', 'Y', 'Z'],
    read: (status, id) => status.vector(`robot${id}.${field}`),
  };
}

const quantities: Quantity[] = [
  perJoint('Angle', 'deg', 'angle'),
  perJoint('Joint speed', 'deg/s', 'speed'),
  ofAxes('Position', 'mm', 'tcp'),
  {
    name: 'TCP speed',
    unit: 'mm/s',
    series: ['measured'],
    read: (status, id) => [status.speed(id)],
  },
  perJoint('Torque', 'as the drives give it', 'torque'),
  ofAxes('Force', 'N', 'force'),
  {
    name: 'Frames',
    unit: '1/s, ms',
    series: ['frames a second', 'longest gap'],
    read: (status) => [status.number('link.frame_rate'), status.number('link.longest_gap')],
  },
];

interface Sample {
  time: number;
  values: number[][]; // by quantity
}

/** The last minute of one quantity of a robot. All are kept, so that choosing another one shows its minute at once. */
export class Plot {
  private readonly samples: Sample[][] = [[], []];
  private readonly tabs = quantities.map(({ name }, index) => {
    const tab = element('button', '', name);
    tab.onclick = () => this.choose(index);
    return tab;
  });
  private readonly place = element('div', 'plot');
  private readonly key = element('div', 'key');
  private chosen = 0;
  private robot = 0;
  private plot?: uPlot;
  private isDue = false;

  constructor(place: HTMLElement) {
    place.append(element('div', 'tabs', ...this.tabs), this.place, this.key);
    new ResizeObserver(() => this.plot?.setSize(this.size())).observe(this.place);
    this.choose(0);
    setInterval(() => this.draw(), 100);
  }

  add(status: Status): void {
    for (const id of status.robots) {
      const samples = this.samples[id];
      const last = samples.at(-1);
      if (last && (status.time < last.time || status.time > last.time + lasting)) samples.length = 0;
      samples.push({ time: status.time, values: quantities.map((quantity) => quantity.read(status, id)) });
      const old = samples.findIndex(({ time }) => time > status.time - lasting);
      // Old ones go by the hundred: moving all the others for each would take longer than drawing.
      if (old > 100) samples.splice(0, old);
    }
    this.isDue = true;
  }

  clear(): void {
    for (const samples of this.samples) samples.length = 0;
    this.isDue = true;
  }

  showRobot(id: number): void {
    this.robot = id;
    this.isDue = true;
  }

  chooseNext(): void {
    this.choose((this.chosen + 1) % quantities.length);
  }

  choose(index: number): void {
    this.chosen = index;
    this.tabs.forEach((tab, place) => tab.setAttribute('aria-pressed', String(place === index)));
    this.paint();
  }

  /** Made anew: the library takes colours once. */
  paint(): void {
    const style = getComputedStyle(document.documentElement);
    const [text, grid] = ['--dim', '--line'].map((name) => style.getPropertyValue(name).trim());
    const { series, unit } = quantities[this.chosen];
    const names = series.map((name, index) => {
      const entry = element('span', '', element('i'), name, element('b', 'figure'));
      entry.style.setProperty('--tone', colours[index]);
      return entry;
    });
    this.key.replaceChildren(...names, element('span', 'dim', unit));
    this.plot?.destroy();
    const font = '11px system-ui, sans-serif';
    const axis = { stroke: text, font, grid: { stroke: grid, width: 1 }, ticks: { stroke: grid, width: 1, size: 4 } };
    this.plot = new uPlot(
      {
        ...this.size(),
        padding: [10, 12, 0, 0],
        cursor: { drag: { x: false, y: false }, points: { size: 5 } },
        legend: { show: false },
        hooks: { setCursor: [() => this.showKey()] },
        scales: {
          x: { time: false, range: (_plot, low) => [Math.min(low ?? 0, -10), 0] },
          y: { range: (_plot, low, high) => padded(low, high) },
        },
        axes: [
          { ...axis, size: 26, values: (_plot, splits) => splits.map((at) => (at === 0 ? 'now' : `${at} s`)) },
          { ...axis, size: 52 },
        ],
        series: [
          {},
          ...series.map((_, index) => ({ stroke: colours[index], width: 1.5, points: { show: false } })),
        ],
      },
      this.data(),
      this.place,
    );
  }

  private size(): { width: number; height: number } {
    return { width: Math.max(this.place.clientWidth, 50), height: Math.max(this.place.clientHeight, 40) };
  }

  private data(): uPlot.AlignedData {
    const samples = this.samples[this.robot];
    const now = samples.at(-1)?.time ?? 0;
    const columns: number[][] = [samples.map(({ time }) => time - now)];
    quantities[this.chosen].series.forEach((_, index) =>
      columns.push(samples.map(({ values }) => values[this.chosen][index])),
    );
    return columns as uPlot.AlignedData;
  }

  private draw(): void {
    if (!this.isDue || document.hidden) return;
    this.isDue = false;
    this.plot?.setData(this.data());
    this.showKey();
  }

  /** The values where the pointer is, or the latest ones. */
  private showKey(): void {
    const samples = this.samples[this.robot];
    const at = samples[this.plot?.cursor.idx ?? samples.length - 1];
    this.key.querySelectorAll('b').forEach((value, index) => setText(value, at?.values[this.chosen][index].toFixed(1) ?? ''));
  }
}

function padded(low: number | null, high: number | null): [number, number] {
  if (low === null || high === null) return [-1, 1];
  const room = Math.max((high - low) * 0.08, 0.5);
  return [low - room, high + room];
}
