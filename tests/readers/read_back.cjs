// SPDX-License-Identifier: MIT
// Writes a log of 300 contacts, lets the program export it, and compares what readers that others have written find
// in the exports: every call, date, time, band, mode and grid.
'use strict';

const assert = require('node:assert');
const { execFileSync } = require('node:child_process');
const fs = require('node:fs');
const path = require('node:path');
const { AdifParser } = require('adif-parser-ts');
const cabrillo = require('cabrillo');
const { ADIF } = require('tcadif');

const [, , operator, folder] = process.argv;

// Label of the log, and the band field of the Cabrillo file of a contest that counts microwaves in gigahertz.
const bands = [
    ['50', '50'], ['144', '144'], ['222', '222'], ['432', '432'], ['903', '902'], ['1296', '1.2G'], ['2304', '2.3G'],
    ['3456', '3.4G'], ['5760', '5.7G'], ['10368', '10G'], ['24000', '24G'], ['47000', '47G'], ['Laser', '300G'],
];
const two = (number) => String(number).padStart(2, '0');

/// A contact of its own for each number: all bands, both modes, both lengths of grid and of date, dupes too.
function contact(number) {
    const letter = (step) => String.fromCharCode(65 + Math.floor(number / step) % 26);
    const suffix = ['', '/R', '/M', '/QRP'][number % 7] ?? '';
    const minute = 14 * 60 + number * 5;
    const square = 'FEDC'[number % 4] + 'MN'[number % 2] + number % 10 + Math.floor(number / 10) % 10;
    return {
        band: bands[number % bands.length],
        mode: number % 3 === 0 ? 'CW' : 'PH',
        day: 20 + Math.floor(minute / 1440),
        time: two(Math.floor(minute / 60) % 24) + two(minute % 60) === '0000' ? '0001'
            : two(Math.floor(minute / 60) % 24) + two(minute % 60),
        call: `${number % 2 ? 'W' : 'VE'}${number % 10}${letter(1)}${letter(26)}${suffix}`,
        grid: number % 5 === 0 ? square : square + 'jk',
        points: number % 11 === 0 ? '0' : '1',
    };
}

const contacts = Array.from({ length: 300 }, (_, number) => contact(number));
const logLine = (c) => c.band[0].padEnd(6) + c.mode.padEnd(4) + `01/${two(c.day)}/07`.padEnd(10) + c.time.padEnd(6) +
    c.call.padEnd(13) + 'FN20jk '.padEnd(7) + c.grid.padEnd(7) + ''.padEnd(9) + c.points.padEnd(2);

function playExports() {
    const header = '2007 ARRL Jan. VHF Sweepstakes\r\nv2.0        W1ABC           1\r\n';
    fs.writeFileSync(path.join(folder, 'JAN07.lgg'), header + contacts.map((c) => logLine(c) + '\r\n').join(''), 'latin1');
    const data = ['W1ABC', 'Pat', '1 Hill Road', 'Town, PA', 'FN20JK', '', 'EPA', 'SINGLE-OP', '', '', 'LOW', 'FIXED',
        'ONE', 'ALL'];
    fs.writeFileSync(path.join(folder, 'Name.dat'), data.map((text) => `"${text}"\r\n`).join(''), 'latin1');
    const script = ['start', 'click frmSetup.logFile 0', 'click frmSetup.cmdDone', 'click frmLog.mCabrillo', 'reply jan07',
        'click frmLog.mADIF', 'click frmLog.cmdExit'].join('\n') + '\n';
    fs.writeFileSync(path.join(folder, 'export.ops'), script);
    execFileSync(path.resolve(operator), ['export.ops'], { cwd: folder, stdio: ['ignore', 'pipe', 'inherit'] });
}

const exported = (name) => fs.readFileSync(path.join(folder, name), 'latin1');

function compare(reader, found, wanted) {
    assert.strictEqual(found.length, wanted.length, `${reader} finds ${found.length} contacts`);
    wanted.forEach((fields, at) => assert.deepStrictEqual({ ...found[at] }, fields, `${reader}, contact ${at + 1}`));
    console.log(`${reader}: ${found.length} contacts read back`);
}

const adifFields = (c) => ({
    call: c.call, qso_date: `200701${c.day}`, time_on: c.time, freq: c.band[0], mode: c.mode === 'PH' ? 'SSB' : c.mode,
    gridsquare: c.grid,
});

function readWithAdifParser() {
    compare('adif-parser-ts', AdifParser.parseAdi(exported('JAN07.ADI')).records, contacts.map(adifFields));
}

/// This reader checks each value against its type, and so refuses the band of light, which is no number. It gives
/// grids back in upper case.
function readWithTcadif() {
    const numeric = exported('JAN07.ADI').split('\r\n').filter((line) => !line.includes('Laser')).join('\r\n');
    const upper = (fields) => Object.fromEntries(Object.entries(fields).map(([name, value]) => [name.toUpperCase(), value]));
    const read = ADIF.parse(numeric).toObject().qsos;
    compare('tcadif', read, contacts.filter((c) => c.band[0] !== 'Laser')
        .map((c) => upper({ ...adifFields(c), gridsquare: c.grid.toUpperCase() })));
}

function readWithCabrillo() {
    const entry = cabrillo.cabrilloToObject(exported('W1ABC.log').replaceAll('\r\n', '\n'));
    assert.strictEqual(entry['CABRILLO-VERSION'], '3.0');
    assert.strictEqual(entry.CONTEST, 'ARRL-VHF-JAN');
    assert.strictEqual(entry.CALLSIGN, 'W1ABC');
    compare('cabrillo', entry.QSO, contacts.map((c) => ({
        freq: c.band[1], mo: c.mode, date: `2007-01-${c.day}`, time: c.time, sentcall: 'W1ABC', sentrst: '',
        sentexch: 'FN20jk', rcvdcall: c.call, rcvdrst: '', rcvdexch: c.grid, t: '',
    })));
}

playExports();
readWithAdifParser();
readWithTcadif();
readWithCabrillo();
