import { BoxEvent } from './connection';
import { element, setText } from './element';
import { eventTone } from './names';
import { Status } from './status';

/** Minutes and seconds of a recording. */
export function clockOfRecording(time: number): string {
  const tenths = Math.floor(time * 10 + 1e-3);
  const seconds = ((tenths % 600) / 10).toFixed(1).padStart(4, '0');
  return `${Math.floor(tenths / 600)}:${seconds}`;
}

/** Plays a recording: stops and goes on, goes to any place, faster or slower; marks the events. */
export class TimeBar {
  onSeek = () => {};
  /** The time that is shown, in seconds. */
  now = 0;
  private readonly button = element('button', 'play');
  private readonly slider = element('input');
  private readonly time = element('span', 'figure');
  private readonly marks = element('div', 'marks');
  private readonly pace = element('select');
  private isPlaying = true;
  private duration = 0;
  private asking?: ReturnType<typeof setTimeout>;

  constructor(
    private readonly place: HTMLElement,
    private readonly send: (line: string) => void,
  ) {
    this.button.title = 'Play or pause (Space)';
    this.button.onclick = () => this.toggle();
    Object.assign(this.slider, { type: 'range', min: '0', step: '0.01', title: 'Time of the recording' });
    this.slider.oninput = () => this.seek(Number(this.slider.value));
    for (const pace of [0.1, 0.25, 0.5, 1, 2, 5, 10]) this.pace.append(new Option(`${pace}×`, String(pace)));
    this.pace.title = 'Speed of playing ([ and ])';
    this.pace.onchange = () => this.sendPace();
    place.append(this.button, element('div', 'track', this.marks, this.slider), this.time, this.pace);
  }

  begin(duration: number): void {
    this.duration = duration;
    this.now = 0;
    this.place.hidden = duration === 0;
    this.slider.max = String(duration);
    this.pace.value = '1';
    this.marks.replaceChildren();
    this.setPlaying(true);
  }

  mark(event: BoxEvent): void {
    const mark = element('i');
    mark.dataset.tone = eventTone(event.group, event.event);
    mark.style.left = `${(event.time / this.duration) * 100}%`;
    this.marks.append(mark);
  }

  show(status: Status): void {
    this.now = status.time;
    this.slider.value = String(this.now);
    setText(this.time, `${clockOfRecording(this.now)} / ${clockOfRecording(this.duration)}`);
    if (this.isPlaying && this.now >= this.duration) this.setPlaying(false);
  }

  toggle(): void {
    if (!this.isPlaying && this.now >= this.duration - 0.01) this.seek(0);
    this.setPlaying(!this.isPlaying);
    this.send(this.isPlaying ? 'play' : 'pause');
  }

  step(seconds: number): void {
    this.seek(Math.min(Math.max(this.now + seconds, 0), this.duration));
  }

  quicken(steps: number): void {
    this.pace.selectedIndex = Math.min(Math.max(this.pace.selectedIndex + steps, 0), this.pace.length - 1);
    this.sendPace();
  }

  seek(time: number): void {
    this.now = time;
    this.slider.value = String(time);
    this.send(`seek ${time}`);
    this.onSeek();
    // Plots and traces begin with the minute ahead of the place, once the slider rests.
    clearTimeout(this.asking);
    this.asking = setTimeout(() => this.send('past'), 150);
  }

  private sendPace(): void {
    this.send(`pace ${this.pace.value}`);
  }

  private setPlaying(playing: boolean): void {
    this.isPlaying = playing;
    this.button.classList.toggle('playing', playing);
    this.button.setAttribute('aria-label', playing ? 'Pause' : 'Play');
  }
}
