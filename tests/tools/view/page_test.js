// Looks at the page as somebody in front of it does. Started by the gate page_in_browser, which acts on what is printed
// in capitals.
import assert from 'node:assert/strict';
import { createRequire } from 'node:module';
import { readFileSync } from 'node:fs';
import { get } from 'node:http';
import { connect } from 'node:net';
import { loadavg } from 'node:os';
import { join } from 'node:path';

const [modules, address, guardedAddress, pictures, recording, ...playing] = process.argv.slice(2);
const { chromium } = createRequire(join(modules, 'package.json'))('playwright-core');
const upgrade = { Connection: 'Upgrade', Upgrade: 'websocket', 'Sec-WebSocket-Version': '13', 'Sec-WebSocket-Key': 'AAAAAAAAAAAAAAAAAAAAAA==' };

const browser = await chromium.launch({
  executablePath: '/usr/bin/chromium',
  args: [
    '--no-sandbox', '--disable-gpu', '--use-gl=angle', '--use-angle=swiftshader', '--enable-unsafe-swiftshader',
    '--disable-quic', '--no-first-run', '--disable-background-networking', '--disable-component-update', '--disable-sync',
  ],
});
const errors = [];

async function open(url, options = {}) {
  const page = await (await browser.newContext({ viewport: { width: 1280, height: 720 }, ...options })).newPage();
  page.on('console', (message) => message.type() === 'error' && errors.push(message.text()));
  page.on('pageerror', (error) => errors.push(String(error)));
  page.setDefaultTimeout(90_000); // a machine that is busy takes its time
  await page.goto(url);
  return page;
}

/// Status and what else the server answers to a request, or to a WebSocket's.
function ask(url, headers) {
  return new Promise((done, failed) => {
    const request = get(url, { headers }, (answer) => {
      answer.resume();
      done(answer.statusCode);
    });
    request.on('upgrade', (answer, socket) => {
      socket.destroy();
      done(answer.statusCode);
    });
    request.on('error', failed);
  });
}

/// The samples of a table that qorin has recorded: objects by the names of the columns.
function samplesOf(file) {
  const lines = readFileSync(file, 'utf8').split('\n').filter((line) => line !== '' && !line.startsWith('#'));
  const names = lines[0].split(',');
  return lines.slice(1).filter((line) => line.endsWith(',,,,')).map((line) => {
    const cells = line.split(',');
    return Object.fromEntries(names.map((name, at) => [name, Number(cells[at])]));
  });
}

async function picture(page, name) {
  if (pictures) await page.screenshot({ path: join(pictures, name) });
}

const tests = {
  async 'strangers are not let in'() {
    const { host, origin } = new URL(address);
    const live = new URL('/live', address);
    assert.equal(await ask(live, upgrade), 101);
    assert.equal(await ask(live, { ...upgrade, Origin: origin }), 101);
    assert.equal(await ask(live, { ...upgrade, Origin: 'http://elsewhere.example' }), 403);
    assert.equal(await ask(live, { ...upgrade, Origin: `https://${host}.example` }), 403);
    assert.equal(await ask(address, { Host: 'elsewhere.example' }), 421);
    assert.equal(await ask(new URL('/../../etc/passwd', address), {}), 404);
    assert.equal(await ask(new URL('/licences.txt', address), {}), 200);
    const guarded = new URL(guardedAddress);
    const token = guarded.searchParams.get('token');
    for (const [given, status] of [['', 403], [`?token=${token.slice(1)}`, 403], [`?token=${token}`, 101]])
      assert.equal(await ask(new URL(`/live${given}`, guarded), upgrade), status, given);
    const page = await open(guarded.origin);
    await page.getByText('lacks the token').waitFor();
    await page.context().close();
    errors.length = 0; // the browser tells of the refusals
  },

  async 'the arms are drawn where the mirror tells that their tools are'(page) {
    const looks = await page.evaluate(async () => {
      const found = [];
      for (let look = 0; look < 40; ++look) {
        for (const robot of [0, 1]) found.push({ robot, drawn: qorin.drawnTcp(robot), told: qorin.toldTcp(robot) });
        await new Promise((done) => setTimeout(done, 50));
      }
      return found;
    });
    const seen = [[], []];
    for (const { robot, drawn, told } of looks) {
      const apart = Math.hypot(...drawn.map((value, axis) => value - told[axis]));
      assert.ok(apart < 1, `robot ${robot}: drawn at ${drawn}, told at ${told}`);
      seen[robot].push(told[1]);
    }
    for (const places of seen) assert.ok(Math.max(...places) - Math.min(...places) > 50, 'no robot moves');
  },

  async 'panels tell of the robot that is chosen'(page) {
    await page.keyboard.press('2');
    assert.equal(await page.locator('#robots [aria-pressed=true]').innerText(), 'Robot 1');
    const shown = await page.locator('.joints td:nth-child(3)').allInnerTexts();
    assert.equal(shown.length, 6);
    await page.waitForFunction(() => [...document.querySelectorAll('.joints td:nth-child(3)')]
      .every((cell, joint) => Math.abs(Number(cell.textContent.replace('−', '-')) - qorin.joints(1)[joint]) < 0.01));
    assert.equal(await page.locator('.lamps').nth(1).locator('.lit').count(), 1, 'one output is on');
    await page.keyboard.press('1');
    await page.keyboard.press('?');
    await page.getByText('choose the robot').waitFor();
    await page.keyboard.press('Escape');
  },

  async 'a viewer that takes nothing holds nobody up'(page) {
    const { hostname, port, host } = new URL(address);
    const sleepers = Array.from({ length: 3 }, () => {
      const socket = connect(Number(port), hostname);
      const lines = Object.entries({ Host: host, ...upgrade }).map(([name, value]) => `${name}: ${value}\r\n`);
      socket.write(`GET /live HTTP/1.1\r\n${lines.join('')}\r\n`);
      return socket.pause();
    });
    const before = await page.evaluate(() => qorin.time());
    await page.waitForTimeout(3000);
    assert.ok((await page.evaluate(() => qorin.time())) - before > 2);
    for (const socket of sleepers) socket.destroy();
  },

  async 'a hundred events arrive in their order'(page) {
    console.log('EVENTS 100');
    const faults = page.locator('.events li', { hasText: 'Ecat slave fault' });
    await page.waitForFunction(() => [...document.querySelectorAll('.events li')]
      .filter((row) => row.textContent.includes('Ecat slave fault')).length === 103); // with those of the recordings
    const senders = await faults.locator('summary .dim').allInnerTexts();
    assert.deepEqual(senders.reverse().slice(3), Array.from({ length: 100 }, (_, sender) => `Error ${sender + 1}`));
    // Not by the pointer: the rows move as others come.
    await faults.first().locator('summary').dispatchEvent('click');
    const more = await faults.first().locator('.more').innerText();
    for (const text of ['Ethercat slave report the fault', 'contact a CS engineer', 'slave ID, error code', '1, 2, 3, 4, 5'])
      assert.ok(more.includes(text), more);
    await faults.first().locator('summary').dispatchEvent('click');
  },

  async 'a lost control box shows within two seconds, and comes back when told to'(page) {
    const banner = page.locator('#banner');
    assert.ok(await banner.isHidden());
    await page.evaluate(() => new MutationObserver(() => (window.bannerSince = Date.now()))
      .observe(document.getElementById('banner'), { attributes: true }));
    const lost = Date.now();
    console.log('LOSE');
    await page.getByText('The control box is lost').waitFor();
    const shown = (await page.evaluate(() => window.bannerSince)) - lost;
    console.log(`it shows after ${shown} ms`);
    assert.ok(shown < 2000 || loadavg()[0] > 1, `shown after ${shown} ms`);
    await picture(page, 'lost.png');
    await page.locator('#again').click();
    await page.getByText('no control box at').waitFor();
    console.log('RESTORE');
    await page.waitForTimeout(1000);
    await page.keyboard.press('r');
    await banner.waitFor({ state: 'hidden', timeout: 90_000 });
    await page.waitForFunction(() => qorin.link() === 'CONNECTED' && Math.abs(qorin.joints(0)[2] - 90) < 0.01);
  },
};

/// Of the recordings, which are a table, a database of the same time, and the table without its end.
const ofTable = {
  async 'a recording is drawn as it was at the time that is sought'(page) {
    const samples = samplesOf(recording);
    const places = [];
    for (const share of [0.9, 0.1, 0.5, 0.7, 0]) {
      const sample = samples[Math.floor(share * (samples.length - 1))];
      await page.locator('#timebar input').fill(String(Math.ceil(sample.time * 100) / 100));
      await page.waitForFunction(([time, angle]) => Math.abs(qorin.time() - time) < 0.011 &&
        Math.abs(qorin.joints(1)[1] - angle) < 0.5, [sample.time, sample['robot1.joint1.angle']]);
      for (const robot of [0, 1]) {
        const { drawn, told } = await page.evaluate((id) => ({ drawn: qorin.drawnTcp(id), told: qorin.toldTcp(id) }), robot);
        const apart = (one, place) => Math.hypot(...['x', 'y', 'z'].map((axis, at) => one[`robot${robot}.tcp.${axis}`] - place[at]));
        const row = samples.find((one) => Math.abs(one.time - sample.time) < 0.05 && apart(one, told) < 0.001);
        assert.ok(row, `no sample has the TCP at ${told}`);
        assert.ok(apart(row, drawn) < 1, `robot ${robot} at ${row.time}: drawn ${apart(row, drawn)} mm away`);
      }
      places.push(sample['robot1.tcp.y']);
    }
    assert.ok(Math.max(...places) - Math.min(...places) > 20, 'the recording has no motion');
  },

};

const ofWhole = {
  async 'events of a recording are there at their time, and it plays on to its end'(page) {
    const past = page.locator('.events li:not(.ahead)', { hasText: 'Ecat slave fault' });
    await page.locator('.events time').first().dispatchEvent('click');
    await page.waitForFunction(() => qorin.time() > 1);
    await page.waitForFunction(() => !document.querySelector('.events .ahead'));
    assert.equal(await past.count(), 3);
    await page.keyboard.press('Home');
    await page.waitForFunction(() => qorin.time() === 0 && document.querySelectorAll('.events .ahead').length >= 3);
    for (let times = 0; times < 3; ++times) await page.keyboard.press(']');
    await page.keyboard.press('Space');
    await page.waitForFunction(() => qorin.time() > 3.5 && !document.querySelector('.playing'));
    assert.equal(await past.count(), 3);
    await picture(page, 'playback.png');
  },
};

let failures = 0;
let page = await open(address);
await page.waitForFunction(() => window.qorin?.frames() > 2 && qorin.toldTcp(1).length > 0);
async function run(all) {
  for (const [name, test] of Object.entries(all)) {
    try {
      await test(page);
      assert.deepEqual(errors, []);
      console.log(`ok: ${name}`);
    } catch (error) {
      ++failures;
      errors.length = 0;
      console.log(`failed: ${name}: ${error.stack}`);
    }
  }
}
await run(tests);
for (const [index, played] of playing.entries()) {
  await page.context().close();
  page = await open(played);
  await page.waitForFunction(() => window.qorin?.frames() > 0 && qorin.toldTcp(1).length > 0);
  await page.locator('.playing').waitFor({ state: 'detached' }); // to its end
  await run([{ ...ofTable, ...ofWhole }, ofWhole, {}][index]);
}
await browser.close();
process.exit(failures > 0 ? 1 : 0);
