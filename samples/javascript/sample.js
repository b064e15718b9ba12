// A host in JavaScript: a window with a plot that fills it, ten points, two lines and a clothoid, a
// new plot for each new size, and a title that says which point was tapped.
//
//     node sample.js FOLDER      the folder that holds tavix_c.dll
'use strict';

const path = require('path');
const koffi = require('koffi');
const folder = process.argv[2] || '.';
const tavix = require('../../bindings/javascript/tavix.js').open(
  koffi, path.join(folder, 'tavix_c.dll'));

const TAPPED = 100;
const SOLID = 101;
const POINTS = [
  // north and east in metres
  ['基準点1', -35123.456, 12345.678], ['基準点2', -35098.112, 12391.040],
  ['境1', -35110.250, 12360.500], ['境2', -35104.900, 12378.250],
  ['境3', -35119.300, 12383.775], ['境4', -35121.750, 12368.400],
  ['街灯', -35101.300, 12362.900], ['マンホール', -35113.825, 12372.150],
  ['電柱', -35107.560, 12388.300], ['水準点', -35125.200, 12379.640],
];

// The few calls of Windows that a window takes.
const user32 = koffi.load('user32.dll');
koffi.struct('POINT', { x: 'long', y: 'long' });
koffi.struct('RECT', { left: 'long', top: 'long', right: 'long', bottom: 'long' });
koffi.struct('MSG', {
  window: 'intptr', message: 'uint', wParam: 'uintptr', lParam: 'intptr', time: 'uint',
  point: 'POINT',
});
const Procedure = koffi.proto(
  'intptr __stdcall Procedure(intptr window, uint message, uintptr wParam, intptr lParam)');
koffi.struct('WNDCLASSW', {
  style: 'uint', procedure: koffi.pointer(Procedure), classExtra: 'int', windowExtra: 'int',
  instance: 'intptr', icon: 'intptr', cursor: 'intptr', brush: 'intptr', menuName: 'str16',
  className: 'str16',
});
const RegisterClass = user32.func('uint16 __stdcall RegisterClassW(WNDCLASSW* type)');
const CreateWindow = user32.func(
  'intptr __stdcall CreateWindowExW(uint extended, str16 type, str16 title, uint style, int x, ' +
  'int y, int width, int height, intptr parent, intptr menu, intptr instance, void* extra)');
const DefWindowProc = user32.func(
  'intptr __stdcall DefWindowProcW(intptr window, uint message, uintptr wParam, intptr lParam)');
const ShowWindow = user32.func('int __stdcall ShowWindow(intptr window, int how)');
const GetMessage = user32.func(
  'int __stdcall GetMessageW(_Out_ MSG* message, intptr window, uint first, uint last)');
const TranslateMessage = user32.func('int __stdcall TranslateMessage(MSG* message)');
const DispatchMessage = user32.func('intptr __stdcall DispatchMessageW(MSG* message)');
const PostQuitMessage = user32.func('void __stdcall PostQuitMessage(int code)');
const SetWindowText = user32.func('int __stdcall SetWindowTextW(intptr window, str16 text)');
const GetClientRect = user32.func(
  'int __stdcall GetClientRect(intptr window, _Out_ RECT* client)');
const LoadCursor = user32.func('intptr __stdcall LoadCursorW(intptr instance, intptr name)');
const WM_DESTROY = 0x0002;
const WM_SIZE = 0x0005;
const WM_COMMAND = 0x0111;
const WS_OVERLAPPEDWINDOW = 0x00CF0000;
const WS_CLIPCHILDREN = 0x02000000;
const SIZE_MINIMIZED = 1;
const IDC_ARROW = 32512;
const SW_SHOW = 5;

const plot = new tavix.Plot(0);
let hasView = false;

function enterSurvey() {
  plot.selectPointLegend(plot.addPointLegend(2, 1, 0xC00000, 10, 14, false));
  POINTS.forEach(([name, north, east], i) => {
    plot.enterPoint(i + 1, i + 1, name, north, east);  // keys 1 to 10
  });
  plot.selectLineLegend(SOLID);
  plot.enterLine(3, 4);
  plot.enterLine(4, 5);
  plot.startFigure(1, SOLID);
  plot.clothoid(-35122, 12350, -35110, 12369, 0, 30, 40);
  plot.endFigure();
}

// A plot window keeps its size: another size takes another one.
function showPlot(window) {
  const client = {};
  GetClientRect(window, client);
  plot.link(window, 0, 0, client.right, client.bottom, TAPPED);
  plot.draw(hasView);
  plot.show(true);
  hasView = true;
}

function sayPoint(window, key) {
  const { name, north, east } = plot.point(key);
  SetWindowText(window, `${name}  X ${north.toFixed(3)}  Y ${east.toFixed(3)}`);
}

const procedure = koffi.register((window, message, wParam, lParam) => {
  switch (message) {
    case WM_SIZE:
      if (wParam !== SIZE_MINIMIZED) showPlot(window);
      return 0;
    case WM_COMMAND:
      if ((wParam & 0xFFFF) === TAPPED) sayPoint(window, lParam);
      return 0;
    case WM_DESTROY:
      plot.delete();
      PostQuitMessage(0);
      return 0;
    default:
      return DefWindowProc(window, message, wParam, lParam);
  }
}, koffi.pointer(Procedure));

enterSurvey();
RegisterClass({ procedure, cursor: LoadCursor(0, IDC_ARROW), className: 'TavixSample' });
const window = CreateWindow(0, 'TavixSample', 'Tap a point', WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                            20, 20, 480, 400, 0, 0, 0, null);
ShowWindow(window, SW_SHOW);
const message = {};
while (GetMessage(message, 0, 0, 0) > 0) {
  if (tavix.preTranslate(koffi.as(message, 'MSG*'))) continue;  // the arrow keys
  TranslateMessage(message);
  DispatchMessage(message);
}
