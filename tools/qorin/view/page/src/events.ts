import { BoxEvent } from './connection';
import { element, setText } from './element';
import { eventGroups, eventName, eventTone } from './names';

const limit = 5000; // events that are kept

/** The events as they came, the latest on top. */
export class EventList {
  onSeek?: (time: number) => void; // to where one happened, in a recording
  private last = 0;
  private known: { event: BoxEvent; node: HTMLElement }[] = [];
  private shown = -1;
  private readonly list = element('ol', 'events');
  private readonly count = element('span', 'dim');

  constructor(
    place: HTMLElement,
    private readonly clock: (time: number) => string,
  ) {
    place.append(element('h2', '', 'Events ', this.count), this.list);
    this.clear();
  }

  add(event: BoxEvent): void {
    if (event.number <= this.last) return; // told again after the page had lost its server
    const missed = this.last > 0 ? event.number - this.last - 1 : 0;
    this.last = event.number;
    if (this.known.length === 0) this.list.replaceChildren();
    if (missed > 0) this.list.prepend(element('li', 'empty', `${missed} events were left out`));
    const node = this.row(event);
    this.known.push({ event, node });
    this.list.prepend(node);
    if (this.known.length > limit) this.known.shift()?.node.remove();
    setText(this.count, String(this.last));
  }

  /** In a recording, what is later than the time that is shown is faint, and the event of then is in sight. */
  showAt(time: number): void {
    const next = this.known.findIndex(({ event }) => event.time > time);
    const past = next < 0 ? this.known.length : next;
    if (past === this.shown) return;
    this.shown = past;
    this.known.forEach(({ node }, index) => node.classList.toggle('ahead', index >= past));
    const { node } = this.known[past - 1] ?? this.known[0] ?? {};
    if (node) this.list.scrollTop = node.offsetTop - this.list.offsetTop - 24;
  }

  clear(): void {
    this.last = 0;
    this.known = [];
    this.shown = -1;
    setText(this.count, '');
    this.list.replaceChildren(element('li', 'empty', 'Nothing has happened yet.'));
  }

  private row(event: BoxEvent): HTMLElement {
    const more = element('div', 'more');
    const fact = (name: string, text?: string) => {
      if (text && text !== 'None.') more.append(element('p', '', element('span', 'caption', name), text));
    };
    fact('What', event.description);
    fact('Do', event.advice);
    fact('Name', `${event.group}, ${event.event}`);
    fact('Sender', `${event.sender}${event.carries && event.carries !== 'None.' ? ` (${event.carries})` : ''}`);
    fact('Values', event.values.join(', '));
    const time = element('time', 'figure', this.clock(event.time));
    if (this.onSeek) {
      time.title = 'Go there';
      time.onclick = (click) => {
        click.preventDefault();
        this.onSeek?.(event.time);
      };
    }
    const head = element(
      'summary',
      '',
      time,
      element('i', 'dot'),
      element('span', 'name', eventName(event.group, event.event)),
      element('span', 'dim', `${eventGroups[event.group] ?? ''} ${event.sender}`),
    );
    const row = element('li', '', element('details', '', head, more));
    row.dataset.tone = eventTone(event.group, event.event);
    return row;
  }
}
