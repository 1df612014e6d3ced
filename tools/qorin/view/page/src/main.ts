import './style.css';
import { BoxEvent, Connection } from './connection';
import { byId, element, setText, setTone } from './element';
import { EventList } from './events';
import { wordsOf } from './names';
import { RobotPanel } from './panel';
import { Plot } from './plot';
import { RobotScene, fullSpeed } from './scene';
import { Status } from './status';
import { clockOfRecording, TimeBar } from './timebar';

const clockOfDay = new Intl.DateTimeFormat('en-GB', { hour: '2-digit', minute: '2-digit', second: '2-digit', fractionalSecondDigits: 1 });

class Page {
  private readonly scene = new RobotScene(byId('scene'));
  private readonly panel = new RobotPanel(byId('panel'));
  private readonly plot = new Plot(byId('plot'));
  private readonly events = new EventList(byId('events'), (time) => (this.status?.isRecorded ? clockOfRecording(time) : clockOfDay.format(time * 1000)));
  private readonly timebar = new TimeBar(byId('timebar'), (line) => this.connection.send(line));
  private readonly chips = new Map<string, HTMLElement>();
  private readonly connection: Connection;
  private status?: Status;
  private told: { tcp: number[]; joints: number[]; time: number }[] = []; // as it is shown, by robot
  private trouble = 'Connecting…';
  private lostSince?: number;
  private showing?: ReturnType<typeof setTimeout>;

  constructor() {
    this.timebar.onSeek = () => {
      this.plot.clear();
      this.scene.clearTraces();
    };
    byId('again').onclick = () => this.connection.send('connect');
    byId('theme').onclick = () => this.changeTheme();
    byId('help').onclick = () => this.showHelp();
    document.querySelectorAll<HTMLElement>('#robots button').forEach((tab, id) => (tab.onclick = () => this.choose(id)));
    addEventListener('keydown', (event) => this.press(event));
    this.useTheme(localStorage.getItem('theme') ?? (matchMedia('(prefers-color-scheme: light)').matches ? 'light' : 'dark'));
    this.connection = new Connection({
      hello: (status) => this.begin(status),
      status: (status) => this.take(status),
      past: (status) => {
        this.plot.add(status);
        this.scene.follow(status);
      },
      event: (event) => this.tell(event),
      notice: (text) => setText(byId('notice'), text),
      trouble: (text) => this.showTrouble(text),
    });
    this.expose();
  }

  private begin(status: Status): void {
    this.status = status;
    this.timebar.begin(status.hello.duration);
    this.events.clear();
    this.plot.clear();
    this.scene.clearTraces();
    this.events.onSeek = status.isRecorded ? (time) => this.timebar.seek(time) : undefined;
    setText(byId('box'), status.hello.name);
    byId('box').title = `control software ${status.hello.control_software || 'unknown'}, library ${status.hello.library}`;
    document.title = `${status.hello.name} – qorin view`;
  }

  private take(status: Status): void {
    this.plot.add(status);
    this.scene.follow(status);
    // What comes meanwhile is shown at once: a machine that is slow to show falls behind in nothing.
    this.showing ??= setTimeout(() => {
      this.showing = undefined;
      this.show(status);
    }, 20);
  }

  private show(status: Status): void {
    this.told = [0, 1].map((id) => ({ tcp: status.vector(`robot${id}.tcp`), joints: status.ofJoints(id, 'angle'), time: status.time }));
    if (status.isRecorded) {
      this.timebar.show(status);
      this.events.showAt(status.time);
    }
    this.scene.update(status);
    const shown = status.robots;
    if (shown.length > 0 && !shown.includes(this.panel.robot)) this.choose(shown[0]);
    document.querySelectorAll<HTMLElement>('#robots button').forEach((tab, id) => (tab.hidden = !shown.includes(id)));
    byId('panel').classList.toggle('vacant', shown.length === 0);
    if (shown.length > 0) {
      this.panel.show(status);
      setText(byId('full-speed'), `${fullSpeed(status, this.panel.robot).toFixed(0)} mm/s`);
    }
    this.showVacancy(status);
    this.showChips(status);
    this.showBanner();
  }

  private showVacancy(status: Status): void {
    const unknown = status.robotsWithoutModule;
    const text = unknown.length > 0
      ? `No kinematics module serves the model of robot ${unknown.join(' and ')}.`
      : status.isRecorded ? 'No robot stood then.' : 'There is no robot on the control box.';
    byId('vacancy').hidden = status.robots.length > 0;
    setText(byId('vacancy'), text);
  }

  private showChips(status: Status): void {
    if (!status.isRecorded) {
      const rate = `${status.number('link.frame_rate').toFixed(0)} frames/s · gap ${status.number('link.longest_gap').toFixed(0)} ms`;
      const isWell = status.link === 'CONNECTED';
      this.chip('Link', isWell ? rate : wordsOf(status.link), isWell ? 'good' : status.link === 'CONNECTING' ? 'warn' : 'bad');
      this.chips.get('Link')!.title = `${status.number('link.gaps')} gaps since the connection was made`;
      const control = status.text('cbox.control');
      this.chip('Control', { TAKEN: 'Taken', RELEASED: 'Free' }[control] ?? 'Not told yet', control === 'TAKEN' ? 'move' : '');
    }
    const button = status.text('cbox.emergency_button');
    if (button) this.chip('Emergency', wordsOf(button), button === 'PUSHED' ? 'bad' : '');
    const isBasePushed = [0, 1, 2, 3].some((at) => status.text(`cbox.amr_emergency_button${at}`) === 'PUSHED');
    if (isBasePushed || this.chips.has('Mobile base'))
      this.chip('Mobile base', isBasePushed ? 'Emergency pushed' : 'Released', isBasePushed ? 'bad' : '');
    const ecat = status.text('cbox.ecat');
    if (ecat) this.chip('EtherCAT', wordsOf(ecat), ecat === 'CONNECTED' ? 'good' : 'warn');
  }

  private chip(name: string, text: string, tone: string): void {
    let value = this.chips.get(name);
    if (!value) {
      value = element('span', 'chip');
      this.chips.set(name, value);
      value.append(element('span', 'caption', name), element('b'));
      byId('chips').append(value);
    }
    setText(value.lastElementChild as HTMLElement, text);
    setTone(value, tone);
  }

  private showTrouble(text: string): void {
    this.trouble = text;
    this.showBanner();
  }

  /** One line over the scene when what is seen is not what is. */
  private showBanner(): void {
    const link = this.status?.link ?? 'CONNECTED';
    const isStale = this.trouble !== '' || link !== 'CONNECTED';
    this.lostSince = isStale ? (this.lostSince ?? Date.now()) : undefined;
    const since = `since ${clockOfDay.format(this.lostSince)}; what you see is from then`;
    const texts: Record<string, string> = {
      CONNECTING: 'Connecting to the control box…',
      SILENT: `The control box is silent ${since}.`,
      LOST: `The control box is lost ${since}.`,
    };
    byId('banner').hidden = !isStale;
    setText(byId('banner-text'), this.trouble || (texts[link] ?? ''));
    byId('again').hidden = this.trouble !== '' || link === 'CONNECTING';
    if (!isStale) setText(byId('notice'), '');
    document.body.classList.toggle('stale', isStale);
  }

  private tell(event: BoxEvent): void {
    this.events.add(event);
    if (this.status?.isRecorded) this.timebar.mark(event);
  }

  private choose(id: number): void {
    if (this.status && !this.status.robots.includes(id)) return;
    this.panel.robot = id;
    this.plot.showRobot(id);
    document.querySelectorAll<HTMLElement>('#robots button').forEach((tab, at) => tab.setAttribute('aria-pressed', String(at === id)));
    if (this.status) this.panel.show(this.status);
  }

  private changeTheme(): void {
    this.useTheme(document.documentElement.dataset.theme === 'dark' ? 'light' : 'dark');
    localStorage.setItem('theme', document.documentElement.dataset.theme!);
  }

  private useTheme(theme: string): void {
    document.documentElement.dataset.theme = theme;
    this.scene.paint();
    this.plot.paint();
  }

  private showHelp(): void {
    const dialog = byId('help-text') as HTMLDialogElement;
    if (dialog.open) dialog.close();
    else dialog.showModal();
  }

  private press(event: KeyboardEvent): void {
    if (event.ctrlKey || event.altKey || event.metaKey) return;
    const actions: Record<string, () => void> = {
      '1': () => this.choose(0),
      '2': () => this.choose(1),
      c: () => this.scene.clearTraces(),
      d: () => this.changeTheme(),
      f: () => this.scene.frameAll(),
      p: () => this.plot.chooseNext(),
      r: () => this.connection.send('connect'),
      s: () => this.scene.togglePlanes(),
      t: () => this.scene.toggleTraces(),
      '?': () => this.showHelp(),
    };
    if (this.status?.isRecorded && !(event.target instanceof HTMLSelectElement))
      Object.assign(actions, {
        ' ': () => this.timebar.toggle(),
        ArrowLeft: () => this.timebar.step(event.shiftKey ? -10 : -1),
        ArrowRight: () => this.timebar.step(event.shiftKey ? 10 : 1),
        Home: () => this.timebar.seek(0),
        '[': () => this.timebar.quicken(-1),
        ']': () => this.timebar.quicken(1),
      });
    const act = actions[event.key.length === 1 ? event.key.toLowerCase() : event.key];
    if (!act) return;
    event.preventDefault();
    act();
  }

  /** For whoever looks at the page with a program: what is drawn, beside what was told. */
  private expose(): void {
    Object.assign(window, {
      qorin: {
        frames: () => this.scene.frames,
        drawnTcp: (id: number) => this.scene.drawnTcp(id),
        toldTcp: (id: number) => this.told[id]?.tcp ?? [],
        joints: (id: number) => this.told[id]?.joints ?? [],
        time: () => this.told[0]?.time ?? 0,
        link: () => this.status?.link,
      },
    });
  }
}

new Page();
