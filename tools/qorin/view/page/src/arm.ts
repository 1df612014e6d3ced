import {
  AxesHelper,
  BufferGeometry,
  CapsuleGeometry,
  CylinderGeometry,
  EdgesGeometry,
  Group,
  LineBasicMaterial,
  LineSegments,
  Matrix4,
  Mesh,
  MeshStandardMaterial,
  Object3D,
  Quaternion,
  SphereGeometry,
  Vector3,
} from 'three';
import { joints } from './status';

const toRadians = Math.PI / 180;
const up = new Vector3(0, 1, 0); // capsules and cylinders stand along y

/** A pose as it is told: millimetres, and degrees with the rotation Rz * Ry * Rx. */
export function poseMatrix(pose: ArrayLike<number>): Matrix4 {
  const turn = new Matrix4().makeRotationZ(pose[5] * toRadians);
  turn.multiply(new Matrix4().makeRotationY(pose[4] * toRadians));
  turn.multiply(new Matrix4().makeRotationX(pose[3] * toRadians));
  return turn.setPosition(pose[0], pose[1], pose[2]);
}

/** The frame behind a joint seen from the one ahead of it: Rz(q + theta) Tz(d) Tx(a) Rx(alpha). */
function jointMatrix(angle: number, d: number, a: number, alpha: number): Matrix4 {
  const matrix = new Matrix4().makeRotationZ(angle * toRadians);
  matrix.multiply(new Matrix4().makeTranslation(a, 0, d));
  return matrix.multiply(new Matrix4().makeRotationX(alpha * toRadians));
}

export interface Look {
  link: MeshStandardMaterial;
  joint: MeshStandardMaterial;
  tool: MeshStandardMaterial;
}

/**
 * An arm in its base frame, drawn from its Denavit-Hartenberg table: a tube for each length and offset of a link, and a
 * drum about the axis of each joint.
 */
export class Arm extends Group {
  readonly tcp = new Object3D();
  reach = 0;
  private readonly frames: Object3D[] = [];
  private readonly flange = new Object3D();
  private readonly tool = new Group();
  private readonly parts: Mesh[] = [];
  private table = '';
  private toolPose = '';
  private thickness = 1;

  constructor(private readonly look: Look) {
    super();
    for (let joint = 0; joint < joints; ++joint) {
      const frame = new Object3D();
      frame.matrixAutoUpdate = false;
      (this.frames[joint - 1] ?? this).add(frame);
      this.frames.push(frame);
    }
    this.frames[joints - 1].add(this.flange);
    this.tcp.matrixAutoUpdate = false;
    this.flange.add(this.tool, this.tcp);
  }

  /** Puts the arm into a posture; draws it anew when its table is another. */
  pose(table: number[], count: number, angles: number[]): void {
    const key = `${count}:${table.join()}`;
    if (key !== this.table) {
      this.table = key;
      this.draw(table, count);
    }
    for (let joint = 0; joint < joints; ++joint) {
      const [theta, d, a, alpha] = [0, 1, 2, 3].map((row) => table[row * joints + joint]);
      if (joint < count) this.frames[joint].matrix.copy(jointMatrix(angles[joint] + theta, d, a, alpha));
      else this.frames[joint].matrix.identity();
      this.frames[joint].matrixWorldNeedsUpdate = true;
    }
  }

  /** What is not known of a tool is taken as nothing. */
  hold(told: number[], payload: number[]): void {
    const tool = told.map((value) => value || 0);
    const key = `${tool.join()}:${payload.join()}`;
    if (key === this.toolPose) return;
    this.toolPose = key;
    this.tcp.matrix.copy(poseMatrix(tool));
    this.tcp.matrixWorldNeedsUpdate = true;
    for (const part of this.tool.children) (part as Mesh).geometry.dispose();
    this.tool.clear();
    const end = new Vector3(tool[0], tool[1], tool[2]);
    if (end.length() > 1) {
      const cone = new CylinderGeometry(this.thickness * 0.12, this.thickness * 0.42, end.length(), 24);
      this.tool.add(between(new Mesh(cone, this.look.tool), new Vector3(), end));
    }
    if (payload[0] > 0) {
      const ball = new SphereGeometry(this.thickness * 0.4 * Math.cbrt(payload[0]) + 8, 24, 16);
      const mass = new Mesh(ball, this.look.joint);
      mass.position.set(payload[1], payload[2], payload[3]);
      this.tool.add(mass);
    }
  }

  dispose(): void {
    for (const part of this.parts) part.geometry.dispose();
    this.parts.length = 0;
  }

  private draw(table: number[], count: number): void {
    for (const part of this.parts) part.removeFromParent();
    this.dispose();
    const lengths = table.slice(joints, 3 * joints);
    this.reach = lengths.reduce((sum, length) => sum + Math.abs(length), 0);
    this.thickness = Math.max(this.reach * 0.055, 8);
    this.toolPose = '';
    const base = new CylinderGeometry(this.thickness * 1.25, this.thickness * 1.45, this.thickness * 0.6, 48);
    const foot = this.put(this, new Mesh(base, this.look.joint));
    foot.rotation.x = Math.PI / 2;
    foot.position.z = this.thickness * 0.3;
    for (let joint = 0; joint < count; ++joint) this.drawLink(table, joint);
    const plate = this.put(this.flange, new Mesh(new CylinderGeometry(1, 1, 1, 40), this.look.joint));
    plate.scale.set(this.thickness * 0.5, this.thickness * 0.22, this.thickness * 0.5);
    plate.rotation.x = Math.PI / 2;
    plate.position.z = -this.thickness * 0.11;
  }

  /** The parts that turn with a joint, seen from the frame behind it. */
  private drawLink(table: number[], joint: number): void {
    const [, d, a, alpha] = [0, 1, 2, 3].map((row) => table[row * joints + joint]);
    const frame = this.frames[joint];
    const taper = 1 - 0.5 * (joint / joints);
    const radius = this.thickness * 0.62 * taper;
    const back = new Matrix4().makeRotationX(-alpha * toRadians); // into the axes of the joint
    const corner = new Vector3(-a, 0, 0).applyMatrix4(back);
    const start = new Vector3(-a, 0, -d).applyMatrix4(back);
    const axis = new Vector3(0, 0, 1).applyMatrix4(back);

    this.tube(frame, start, corner, radius);
    this.tube(frame, corner, new Vector3(), radius);
    const drum = new Mesh(new CylinderGeometry(1, 1, 1, 40), this.look.joint);
    drum.scale.set(radius * 1.22, radius * 2.5, radius * 1.22);
    drum.quaternion.copy(new Quaternion().setFromUnitVectors(up, axis));
    drum.position.copy(start);
    this.put(frame, drum);
    const rim = new LineSegments(new EdgesGeometry(drum.geometry as CylinderGeometry, 40), rimMaterial);
    drum.add(rim);
  }

  private tube(frame: Object3D, from: Vector3, to: Vector3, radius: number): void {
    const length = from.distanceTo(to);
    if (length < 1) return;
    this.put(frame, between(new Mesh(new CapsuleGeometry(radius, length, 10, 32), this.look.link), from, to));
  }

  private put(parent: Object3D, part: Mesh): Mesh {
    parent.add(part);
    this.parts.push(part);
    return part;
  }
}

const rimMaterial = new LineBasicMaterial({ color: 0x000000, transparent: true, opacity: 0.18 });

function between(part: Mesh<BufferGeometry>, from: Vector3, to: Vector3): Mesh<BufferGeometry> {
  part.position.copy(from).lerp(to, 0.5);
  part.quaternion.setFromUnitVectors(up, to.clone().sub(from).normalize());
  return part;
}

/** Axes in red, green and blue. */
export function frameAxes(length: number, opacity = 1): AxesHelper {
  const axes = new AxesHelper(length);
  const material = axes.material as LineBasicMaterial;
  material.transparent = opacity < 1;
  material.opacity = opacity;
  material.depthTest = false;
  axes.setColors(0xe5484d, 0x30a46c, 0x3e8bff);
  axes.renderOrder = 3;
  return axes;
}
