import { BoxEvent } from './connection';
import { element, setText } from './element';
import { eventTone } from './names';
import { Status } from './status';

/** Minutes and seconds of a recording. */
export function clockOfRecording(time: number): string {
  const minutes = Math.floor(time / 60);
  return `${minutes}:${(time - 60 * minutes).toFixed(1).padStart(4, '0')}`;
}

/** Plays a recording: stops and goes on, goes to any place, faster or slower; marks the events. */
export class TimeBar {
  onSeek = () => {};
  private readonly button = element('button', 'play', '❚❚');
  private readonly slider = element('input');
  private readonly time = element('span', 'figure');
  private readonly marks = element('div', 'marks');
  private readonly pace = element('select');
  private isPlaying = true;
  private duration = 0;

  constructor(
    private readonly place: HTMLElement,
    private readonly send: (line: string) => void,
  ) {
    this.button.title = 'Play or pause (Space)';
    this.button.onclick = () => this.toggle();
    Object.assign(this.slider, { type: 'range', min: '0', step: '0.01', title: 'Time of the recording' });
    this.slider.oninput = () => this.seek(Number(this.slider.value));
    for (const pace of [0.1, 0.25, 0.5, 1, 2, 5, 10]) this.pace.append(new Option(`${pace}×`, String(pace), pace === 1, pace === 1));
    this.pace.title = 'Pace';
    this.pace.onchange = () => this.send(`pace ${this.pace.value}`);
    place.append(this.button, element('div', 'track', this.slider, this.marks), this.time, this.pace);
  }

  get isShown(): boolean {
    return this.duration > 0;
  }

  begin(duration: number): void {
    this.duration = duration;
    this.place.hidden = !this.isShown;
    this.slider.max = String(duration);
    this.marks.replaceChildren();
  }

  mark(event: BoxEvent): void {
    if (!this.isShown) return;
    const mark = element('i');
    mark.dataset.tone = eventTone(event.group, event.subgroup);
    mark.style.left = `${(event.time / this.duration) * 100}%`;
    this.marks.append(mark);
  }

  show(status: Status): void {
    if (!this.isShown) return;
    if (document.activeElement !== this.slider || this.isPlaying) this.slider.value = String(status.time);
    setText(this.time, `${clockOfRecording(status.time)} / ${clockOfRecording(this.duration)}`);
    if (this.isPlaying && status.time >= this.duration) this.setPlaying(false);
  }

  toggle(): void {
    if (!this.isPlaying && Number(this.slider.value) >= this.duration - 0.01) this.seek(0);
    this.setPlaying(!this.isPlaying);
    this.send(this.isPlaying ? 'play' : 'pause');
  }

  step(seconds: number): void {
    this.seek(Math.min(Math.max(Number(this.slider.value) + seconds, 0), this.duration));
  }

  private seek(time: number): void {
    this.slider.value = String(time);
    this.send(`seek ${time}`);
    this.onSeek();
  }

  private setPlaying(playing: boolean): void {
    this.isPlaying = playing;
    setText(this.button, playing ? '❚❚' : '▶');
  }
}
