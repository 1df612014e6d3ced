import { Hello, Status } from './status';

export interface BoxEvent {
  number: number;
  time: number;
  group: string;
  event: string;
  sender: number;
  values: number[];
  description?: string;
  carries?: string;
  advice?: string;
}

export interface Listener {
  hello(status: Status): void;
  status(status: Status): void;
  event(event: BoxEvent): void;
  notice(text: string): void;
  /** A status from ahead of the time that is shown, in a recording. */
  past(status: Status): void;
  /** What keeps the page from its server, or nothing. */
  trouble(text: string): void;
}

const together = 5;

/** The WebSocket to the server. It is made anew a second after it was lost. */
export class Connection {
  private socket?: WebSocket;
  private status?: Status;
  private isPast = false;
  private taken = 0; // of the status messages that the server has not been told to have arrived

  constructor(private readonly listener: Listener) {
    this.open();
  }

  send(line: string): void {
    if (this.socket?.readyState === WebSocket.OPEN) this.socket.send(line);
  }

  private open(): void {
    const path = `/live${location.search}`;
    const socket = new WebSocket(`ws://${location.host}${path}`);
    socket.binaryType = 'arraybuffer';
    let opened = false;
    socket.onopen = () => {
      opened = true;
      this.taken = 0;
      this.send('seen 0'); // a page that falls behind is to be told less, and not later
      this.listener.trouble('');
    };
    socket.onmessage = ({ data }) => this.take(data);
    socket.onclose = async () => {
      this.listener.trouble('The server of this page does not answer.');
      if (!opened && (await this.isRefused(path)))
        this.listener.trouble('The address lacks the token that qorin view has printed.');
      setTimeout(() => this.open(), 1000);
    };
    this.socket = socket;
  }

  private async isRefused(path: string): Promise<boolean> {
    try {
      return (await fetch(path)).status === 403;
    } catch {
      return false;
    }
  }

  private take(data: ArrayBuffer | string): void {
    if (typeof data !== 'string') {
      if (!this.status) return;
      this.status.apply(data);
      if (++this.taken === together) {
        this.send(`seen ${together}`);
        this.taken = 0;
      }
      if (this.isPast) this.listener.past(this.status);
      else this.listener.status(this.status);
      return;
    }
    const message = JSON.parse(data);
    if (message.kind === 'hello') {
      this.isPast = false;
      this.listener.hello((this.status = new Status(message as Hello)));
    } else if (message.kind === 'past' || message.kind === 'present') this.isPast = message.kind === 'past';
    else if (message.kind === 'event') this.listener.event(message);
    else if (message.kind === 'notice') this.listener.notice(message.text);
  }
}
