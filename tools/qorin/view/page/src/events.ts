import { BoxEvent } from './connection';
import { element, setText } from './element';
import { eventGroups, eventName, eventTone, nameOf } from './names';

const limit = 500;

/** The events as they came, the latest on top. */
export class EventList {
  private last = 0;
  private known: { event: BoxEvent; node: HTMLElement }[] = [];
  private readonly list = element('ol', 'events');
  private readonly count = element('span', 'dim');

  constructor(
    place: HTMLElement,
    private readonly clock: (time: number) => string,
  ) {
    place.append(element('h2', '', 'Events ', this.count), this.list);
    this.list.append(element('li', 'empty', 'Nothing has happened yet.'));
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

  /** In a recording, what is later than the time that is shown is not there yet. */
  showUntil(time: number): void {
    for (const { event, node } of this.known) node.hidden = event.time > time;
  }

  clear(): void {
    this.last = 0;
    this.known = [];
    this.list.replaceChildren();
  }

  private row(event: BoxEvent): HTMLElement {
    const more = element('div', 'more');
    const fact = (name: string, text?: string) => {
      if (text && text !== 'None.') more.append(element('p', '', element('span', 'caption', name), text));
    };
    fact('What', event.description);
    fact('Do', event.advice);
    fact('Name', `${nameOf('QORIN_EVENT_GRP', event.group)}, ${nameOf('QORIN_EVENT_SUBGRP', event.subgroup)}`);
    fact('Sender', `${event.sender}${event.carries && event.carries !== 'None.' ? ` (${event.carries})` : ''}`);
    fact('Values', event.values.join(', '));
    const head = element(
      'summary',
      '',
      element('time', 'figure', this.clock(event.time)),
      element('i', 'dot'),
      element('span', 'name', eventName(event.group, event.subgroup)),
      element('span', 'dim', `${eventGroups[event.group] ?? ''} ${event.sender}`),
    );
    const row = element('li', '', element('details', '', head, more));
    row.dataset.tone = eventTone(event.group, event.subgroup);
    row.dataset.number = String(event.number);
    return row;
  }
}
