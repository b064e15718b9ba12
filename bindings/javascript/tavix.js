// The plot window for Node programs on 64-bit Windows, through the FFI package koffi.
//
// A Plot is one of the five instances. Its methods throw a TavixError where the library refuses;
// what each call does, with units and ranges, stands with the call of the same name in tavix_c.h.
'use strict';

const { constants, load } = require('./tavix_calls.js');

class TavixError extends Error {
  constructor(code, reason) {
    super(`${reason} (${code})`);
    this.name = 'TavixError';
    this.code = code;
  }
}

// Reads a text in two steps: its length, then its characters.
function readText(read) {
  const length = [0];
  if (read(null, 0, length) < 0) return null;
  const text = new Uint16Array(length[0] + 1);
  if (read(text, text.length, length) < 0) return null;
  return String.fromCharCode(...text.subarray(0, length[0]));
}

// Opens `file` (tavix_c.dll with its folder) and returns what a program works with.
function open(koffi, file) {
  const calls = load(koffi, file);

  const check = (code) => {
    if (code >= 0) return code;
    throw new TavixError(code, readText((...out) => calls.LastError(...out)));
  };

  class Plot {
    constructor(instance) {
      this.instance = instance;
      check(calls.Crt(instance));
    }
    delete() { check(calls.Del(this.instance)); }
    link(parent, left, top, right, bottom, notifyId) {
      check(calls.LnkRct(this.instance, parent, left, top, right, bottom, notifyId));
    }
    show(show) { check(calls.Dsp(this.instance, show ? 1 : 0)); }
    draw(keepView) { check(calls.Drw(this.instance, keepView ? 1 : 0)); }
    addPointLegend(kind, width, color, size, labelHeight, showsNumber) {
      const number = [0];
      check(calls.AddPntHan(this.instance, kind, width, color, size, labelHeight,
                            showsNumber ? 1 : 0, number));
      return number[0];
    }
    selectPointLegend(number) { check(calls.SelPntHan(this.instance, number)); }
    selectLineLegend(number) { check(calls.SelLinHan(this.instance, number)); }
    enterPoint(key, number, name, north, east) {
      check(calls.EntPnt(this.instance, key, number, name, north, east));
    }
    // { number, name, north, east }
    point(key) {
      const number = [0];
      const north = [0];
      const east = [0];
      check(calls.GetPntCrd(this.instance, key, north, east));
      const name = readText((...out) => calls.GetPntNoNam(this.instance, key, number, ...out));
      return { number: number[0], name, north: north[0], east: east[0] };
    }
    enterLine(keyA, keyB) { check(calls.EntLin(this.instance, keyA, keyB)); }
    startFigure(figure, legend) { check(calls.FigStt(this.instance, figure, legend)); }
    clothoid(startNorth, startEast, endNorth, endEast, startRadius, a, endRadius) {
      check(calls.FigMdlClo(this.instance, startNorth, startEast, endNorth, endEast, startRadius,
                            a, endRadius));
    }
    endFigure() { check(calls.FigEnd(this.instance)); }
  }

  return {
    calls,
    constants,
    Plot,
    TavixError,
    version: () => calls.Version(),
    // A message (MSG*) before it is dispatched; true when it is not to be.
    preTranslate: (message) => calls.PreTranslate(message) !== 0,
  };
}

module.exports = { open };
