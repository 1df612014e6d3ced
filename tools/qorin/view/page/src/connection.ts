import { Hello, Status } from './status';

export interface BoxEvent {
  number: number;
  time: number;
  group: number;
  subgroup: number;
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
  /** What keeps the page from its server, or nothing. */
  trouble(text: string): void;
}

/** The WebSocket to the server. It is made anew a second after it was lost. */
export class Connection {
  private socket?: WebSocket;
  private status?: Status;

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
      this.listener.status(this.status);
      return;
    }
    const message = JSON.parse(data);
    if (message.kind === 'hello') this.listener.hello((this.status = new Status(message as Hello)));
    else if (message.kind === 'event') this.listener.event(message);
    else if (message.kind === 'notice') this.listener.notice(message.text);
  }
}
