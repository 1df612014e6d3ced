import {
  AmbientLight,
  BufferGeometry,
  Color,
  DirectionalLight,
  DoubleSide,
  Float32BufferAttribute,
  Group,
  HemisphereLight,
  LineBasicMaterial,
  LineLoop,
  LineSegments,
  Mesh,
  MeshBasicMaterial,
  MeshStandardMaterial,
  PerspectiveCamera,
  PlaneGeometry,
  Quaternion,
  Scene,
  SphereGeometry,
  Vector3,
  WebGLRenderer,
  WireframeGeometry,
} from 'three';
import { OrbitControls } from 'three/examples/jsm/controls/OrbitControls.js';
import { Arm, frameAxes, poseMatrix } from './arm';
import { element, setText } from './element';
import { Status } from './status';
import { Trace } from './trace';

const robotLimit = 2;
const planeLimit = 10;
const follows = 0.3; // degrees between commanded and measured joints from which the command is drawn

function material(colour: string, roughness = 0.55, metalness = 0.1): MeshStandardMaterial {
  return new MeshStandardMaterial({ color: colour, roughness, metalness });
}

/** A robot with all that is drawn about it, in its base frame. */
class DrawnRobot extends Group {
  readonly arm: Arm;
  readonly trace = new Trace();
  readonly label: HTMLElement;
  readonly planes = new Group();
  private readonly ghost: Arm;
  private readonly axes = frameAxes(1);
  private readonly target = frameAxes(1, 0.45);
  private readonly shape: LineSegments;
  private planesKey = '';

  constructor(accent: string) {
    super();
    const link = material('#c9ced6');
    this.arm = new Arm({ link, joint: material(accent, 0.5), tool: material('#8b929c', 0.35, 0.4) });
    const faint = material(accent, 1, 0);
    Object.assign(faint, { transparent: true, opacity: 0.16, depthWrite: false });
    this.ghost = new Arm({ link: faint, joint: faint, tool: faint });
    this.shape = new LineSegments(
      new WireframeGeometry(new SphereGeometry(1, 12, 8)),
      new LineBasicMaterial({ color: accent, transparent: true, opacity: 0.35 }),
    );
    this.target.matrixAutoUpdate = false;
    this.arm.tcp.add(this.axes, this.shape);
    this.add(this.arm, this.ghost, this.target, this.trace, this.planes, frameAxes(120, 0.6));
    this.label = element('div', 'robot-label');
  }

  update(status: Status, id: number): void {
    const at = (name: string) => `robot${id}.${name}`;
    const angles = status.ofJoints(id, 'angle');
    const commanded = status.ofJoints(id, 'angle_command');
    const count = angles.filter((angle) => !isNaN(angle)).length;
    const table = [1, 2, 3, 4].flatMap((parameter) => status.ofJoints(id, `dh_${parameter}`));
    this.arm.pose(table, count, angles);
    this.arm.hold(status.pose(at('tool')), [status.number(at('payload.mass')), ...status.vector(at('payload'))]);
    this.ghost.visible = commanded.some((angle, joint) => Math.abs(angle - angles[joint]) > follows);
    if (this.ghost.visible) this.ghost.pose(table, count, commanded);

    const size = this.arm.reach * 0.1;
    this.axes.scale.setScalar(size);
    const target = status.pose(at('tcp_command'));
    this.target.visible = !target.some(isNaN);
    if (this.target.visible)
      this.target.matrix.copy(poseMatrix(target)).scale(new Vector3().setScalar(size * 1.7));
    this.target.matrixWorldNeedsUpdate = true;
    this.shape.visible = status.isOn(at('bounding_shape'));
    this.shape.scale.setScalar(size);
    this.drawPlanes(status, id);
    setText(this.label, `Robot ${id} · ${status.text(at('model'))}`);
  }

  follow(status: Status, id: number): void {
    const place = status.vector(`robot${id}.tcp`);
    if (!place.some(isNaN)) this.trace.follow(status.time, place, status.speed(id), fullSpeed(status, id));
  }

  private drawPlanes(status: Status, id: number): void {
    const inForce = status.isOn(`robot${id}.safety_limits`);
    const values = Array.from({ length: planeLimit }, (_, plane) => {
      const name = `robot${id}.safety_plane${plane}`;
      return [...status.vector(name), status.number(`${name}.distance`)];
    });
    const key = `${inForce}:${this.arm.reach}:${values.join()}`;
    if (key === this.planesKey) return;
    this.planesKey = key;
    this.planes.clear();
    for (const [x, y, z, distance] of values) {
      const normal = new Vector3(x, y, z);
      if (normal.lengthSq() > 0) this.planes.add(safetyPlane(normal, distance, this.arm.reach * 1.1, inForce));
    }
  }
}

/** The points p with normal * p = distance, near the base. */
function safetyPlane(normal: Vector3, distance: number, size: number, inForce: boolean): Group {
  const colour = inForce ? '#e5a13a' : '#8b929c';
  const plane = new Group();
  const face = new PlaneGeometry(size, size);
  plane.add(
    new Mesh(
      face,
      new MeshBasicMaterial({ color: colour, transparent: true, opacity: 0.1, side: DoubleSide, depthWrite: false }),
    ),
  );
  const half = size / 2;
  const corners = [-half, -half, 0, half, -half, 0, half, half, 0, -half, half, 0];
  const rim = new BufferGeometry().setAttribute('position', new Float32BufferAttribute(corners, 3));
  plane.add(new LineLoop(rim, new LineBasicMaterial({ color: colour, transparent: true, opacity: 0.7 })));
  const unit = normal.clone().normalize();
  plane.quaternion.copy(new Quaternion().setFromUnitVectors(new Vector3(0, 0, 1), unit));
  plane.position.copy(unit).multiplyScalar(distance / normal.length());
  return plane;
}

/** The speed of the TCP that counts as full, in the colours of its trace: the least limit that is in force. */
export function fullSpeed(status: Status, id: number): number {
  const inForce = status.isOn(`robot${id}.safety_limits`) ? ['safety_tcp_speed', 'spec_tcp_speed'] : ['spec_tcp_speed'];
  const limits = inForce.map((name) => status.number(`robot${id}.${name}`));
  return Math.min(...limits.filter((limit) => limit > 0), 1000);
}

export class RobotScene {
  frames = 0;
  private readonly scene = new Scene();
  private readonly camera = new PerspectiveCamera(38, 1, 10, 50_000);
  private readonly renderer: WebGLRenderer;
  private readonly controls: OrbitControls;
  private readonly robots: DrawnRobot[] = [];
  private readonly ground = new Group();
  private isDue = true;
  private isDrawing = false; // until the next time that the browser is ready for a picture
  private drawn = 0;
  private nextPicture = 0;
  private layout = '';

  constructor(private readonly place: HTMLElement) {
    const isPlain = drawsByProcessor();
    this.renderer = new WebGLRenderer({ antialias: !isPlain, alpha: true });
    this.renderer.setPixelRatio(isPlain ? 1 : Math.min(devicePixelRatio, 2));
    place.prepend(this.renderer.domElement);
    this.camera.up.set(0, 0, 1);
    this.controls = new OrbitControls(this.camera, this.renderer.domElement);
    this.controls.addEventListener('change', () => this.redraw());
    this.controls.listenToKeyEvents(this.renderer.domElement);
    this.renderer.domElement.tabIndex = 0;
    this.renderer.domElement.setAttribute('aria-label', 'The robots in space');

    const sun = new DirectionalLight(0xffffff, 2.2);
    sun.position.set(1, -1.4, 2.4);
    const fill = new DirectionalLight(0xffffff, 0.7);
    fill.position.set(-1.5, 1, 0.6);
    this.scene.add(sun, fill, new AmbientLight(0xffffff, 0.35), new HemisphereLight(0xffffff, 0x808890, 0.9), this.ground);
    for (let id = 0; id < robotLimit; ++id) {
      const robot = new DrawnRobot(['#1f9d8f', '#7a6ad8'][id]);
      robot.visible = false;
      this.scene.add(robot);
      this.robots.push(robot);
      place.append(robot.label);
    }
    new ResizeObserver(() => this.resize()).observe(place);
    this.paint();
    requestAnimationFrame(() => this.draw());
  }

  update(status: Status): void {
    const shown = status.robots;
    for (const [id, robot] of this.robots.entries()) {
      robot.visible = shown.includes(id);
      robot.label.hidden = !robot.visible;
      if (robot.visible) robot.update(status, id);
    }
    const layout = `${shown.join()}:${shown.map((id) => this.robots[id].arm.reach).join()}`;
    if (layout !== this.layout) {
      this.layout = layout;
      this.arrange(shown);
    }
    this.redraw();
  }

  /** For each status, also where not all are shown. */
  follow(status: Status): void {
    for (const id of status.robots) this.robots[id].follow(status, id);
  }

  redraw(): void {
    this.isDue = true;
  }

  /** Takes the colours of the page again. */
  paint(): void {
    const style = getComputedStyle(document.documentElement);
    const colour = new Color(style.getPropertyValue('--grid').trim());
    this.ground.clear();
    this.ground.add(grid(100, 30, colour, 0.35), grid(500, 6, colour, 0.9));
    this.redraw();
  }

  frameAll(): void {
    const shown = this.robots.filter((robot) => robot.visible);
    const reach = Math.max(...shown.map((robot) => robot.arm.reach), 500);
    const width = shown.length > 1 ? shown[0].position.distanceTo(shown[1].position) : 0;
    this.controls.target.set(reach * 0.12, 0, reach * 0.3);
    const narrow = Math.max(1, (1.1 + width / reach / 2) / this.camera.aspect);
    const away = (reach * 1.15 + width * 0.42) * narrow;
    this.camera.position.set(away * 1.02, -away * 0.3, away * 0.4 + reach * 0.3);
    this.controls.update();
    this.redraw();
  }

  toggleTraces(): void {
    const visible = !this.robots[0].trace.material.visible;
    for (const { trace } of this.robots) trace.material.visible = visible;
    this.redraw();
  }

  togglePlanes(): void {
    for (const { planes } of this.robots) planes.visible = !planes.visible;
    this.redraw();
  }

  clearTraces(): void {
    for (const { trace } of this.robots) trace.forget();
    this.redraw();
  }

  /** Where the TCP is drawn, seen from the base of its robot, in millimetres. */
  drawnTcp(id: number): [number, number, number] {
    const robot = this.robots[id];
    robot.updateWorldMatrix(true, true);
    return robot.worldToLocal(robot.arm.tcp.getWorldPosition(new Vector3())).toArray();
  }

  /** Where the bases stand is not told by a control box: two robots stand side by side. */
  private arrange(shown: number[]): void {
    const apart = shown.reduce((sum, id) => sum + this.robots[id].arm.reach, 0) * 0.55;
    shown.forEach((id, place) => this.robots[id].position.set(0, shown.length > 1 ? (place - 0.5) * apart : 0, 0));
    this.frameAll();
  }

  private resize(): void {
    const { clientWidth: width, clientHeight: height } = this.place;
    if (width === 0 || height === 0) return;
    this.renderer.setSize(width, height, false);
    this.camera.aspect = width / height;
    this.camera.updateProjectionMatrix();
    this.redraw();
  }

  private draw(): void {
    requestAnimationFrame(() => this.draw());
    const now = performance.now();
    if (this.isDrawing) {
      // A machine that takes long for a picture gets as long for everything else.
      const taken = now - this.drawn;
      this.nextPicture = taken > 50 ? now + Math.min(taken, 500) : 0;
      this.isDrawing = false;
    }
    if (!this.isDue || now < this.nextPicture) return;
    this.isDue = false;
    this.isDrawing = true;
    this.drawn = now;
    this.renderer.render(this.scene, this.camera);
    for (const robot of this.robots) if (robot.visible) this.placeLabel(robot);
    ++this.frames;
  }

  private placeLabel(robot: DrawnRobot): void {
    const foot = robot.getWorldPosition(new Vector3()).add(new Vector3(0, 0, -robot.arm.reach * 0.03));
    const { x, y } = foot.project(this.camera);
    const [left, top] = [((x + 1) / 2) * this.place.clientWidth, ((1 - y) / 2) * this.place.clientHeight];
    robot.label.style.transform = `translate(-50%, 14px) translate(${left.toFixed(1)}px, ${top.toFixed(1)}px)`;
  }
}

/** Whether the machine has no graphics processor, or the browser does not use it. */
function drawsByProcessor(): boolean {
  const context = document.createElement('canvas').getContext('webgl2');
  const info = context?.getExtension('WEBGL_debug_renderer_info');
  const renderer = info ? String(context?.getParameter(info.UNMASKED_RENDERER_WEBGL)) : '';
  context?.getExtension('WEBGL_lose_context')?.loseContext();
  return /swiftshader|llvmpipe|software/i.test(renderer);
}

function grid(step: number, count: number, colour: Color, opacity: number): LineSegments {
  const half = (step * count) / 2;
  const corners: number[] = [];
  for (let line = 0; line <= count; ++line) {
    const at = line * step - half;
    corners.push(-half, at, 0, half, at, 0, at, -half, 0, at, half, 0);
  }
  const lines = new BufferGeometry().setAttribute('position', new Float32BufferAttribute(corners, 3));
  return new LineSegments(lines, new LineBasicMaterial({ color: colour, transparent: true, opacity, depthWrite: false }));
}
