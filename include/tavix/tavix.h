// Tavix: a plot window of survey points, lines, figures and curves for field data collectors.
//
// Conventions of every call in this header:
//
//  1. The library keeps five plot instances, 0 to 4. One of them is current (at first 0); every
//  call
//     but Tavix_SetIdx and Tavix_GetIdx works on the current instance only. Tavix_Del may make
//     another instance current.
//  2. Ground coordinates are doubles in metres: X is north, Y is east, and X always comes first.
//     Screen coordinates are whole pixels of the plot window's client area, origin top left, y
//     down. A ground position becomes a pixel by truncation toward zero, not by rounding.
//  3. Flags are bytes: zero is off, anything else is on.
//  4. A key is a number the host chooses to name a point. The point number is shown as a label and
//     names nothing.
//  5. A legend number names the look of a point or a line: 1 to 11 are the built-in point marks,
//  101
//     to 105 the built-in line styles, from 201 up the entries the host adds.
//  6. Strings are CString objects, by value on the way in, by pointer on the way out. Every pointer
//     is the caller's: the library writes through it during the call and keeps nothing of it. No
//     output may be null unless the call says so. A refused call leaves its outputs untouched
//     unless the call says otherwise.
//  7. All calls and all window messages run on one thread, the host's user-interface thread.
//  8. Calls return 0 for success. Refusals are negative:
//
//         -1   refused: unknown key or legend number, slot in use, no instance, no window, or the
//              window could not be made; each call says which of them it knows
//         other negative codes pass through from the store that failed; the call lists them
//
//     With the auto-redraw flag on, a call that redraws returns the redraw's result, which is 0.
//
#pragma once

#include <afxwin.h>

#if defined(TAVIX_LIBRARY_BUILD)
#define TAVIX_CALL
#else
#define TAVIX_CALL __declspec(dllimport)
#endif

extern "C" {

// ---- Instances and their windows ---------------------------------------------------------------

// Makes instance `index` current. An index outside 0..4 changes nothing.
TAVIX_CALL void Tavix_SetIdx(int index);

// Writes the current instance's index, 0 to 4.
TAVIX_CALL void Tavix_GetIdx(int* index);

// Creates the current instance with empty stores. The legend comes from the file HANREI.DAT in the
// current data folder, or from built-in defaults. Returns -1 when the instance exists already.
TAVIX_CALL int Tavix_Crt(void);

// Destroys the current instance, its window included, and saves its legend. Of the instances that
// remain, the one with the highest index becomes current; when none remains, the index stays.
// Always returns 0.
TAVIX_CALL int Tavix_Del(void);

// Makes the instance's plot window in the place of the control `controlId` of `parent`, which is
// hidden and stays hidden. A window linked before is destroyed. The new window is hidden until
// Tavix_Dsp. `notifyId` is the command id under which the window reports to `parent`. `parent` must
// outlive the window. Returns -1 when the window could not be made.
TAVIX_CALL int Tavix_Lnk(CWnd* parent, UINT controlId, UINT notifyId);

// The same in a rectangle of `parent`'s client area, in pixels; right and bottom lie outside.
TAVIX_CALL int Tavix_LnkRct(CWnd* parent, int left, int top, int right, int bottom, UINT notifyId);

// The instance's plot window, owned by the library, or null when none is linked.
TAVIX_CALL CWnd* Tavix_Wnd(void);

// Shows or hides the plot window. Returns -1 when none is linked.
TAVIX_CALL int Tavix_Dsp(BYTE show);

// Switches between the plan (0) and the 3-D side view, and turns the view back to 0 degrees. Does
// not redraw. Needs a linked window. Always returns 0.
TAVIX_CALL int Tavix_Dsp3D(BYTE on);

// Shows or hides the column of buttons at the window's right edge; the drawing area becomes 20
// pixels narrower or wider and the vertical ratio returns to 1. Without a window the choice is kept
// for the next one. Always returns 0.
TAVIX_CALL int Tavix_SetBtn(BYTE show);

// Auto-redraw: while on, entering something new draws it at once and a change redraws the window.
// Off at first. Always returns 0.
TAVIX_CALL int Tavix_DrwFlg(BYTE on);

// Redraws the window; with `keepView` 0 the view is first fitted to the data. With nothing to fit
// the view stays. Needs a linked window (-1 without one); returns 0.
TAVIX_CALL int Tavix_Drw(BYTE keepView);

// Empties the instance's data; the legend is kept. Does not redraw. Returns 0, or the code of the
// first store that could not be emptied; the stores after it are then untouched.
TAVIX_CALL int Tavix_DrwClr(void);

// ---- View --------------------------------------------------------------------------------------

// Turns the view: whole degrees 0..359, positive turns the picture clockwise. Does not redraw.
// Returns -1 for any other angle and changes nothing.
TAVIX_CALL int Tavix_SetAng(int degrees);

// Writes the view's angle in whole degrees, 0..359. Returns 0.
TAVIX_CALL int Tavix_GetAng(int* degrees);

// Sets the vertical exaggeration to tate / yoko (vertical / horizontal). Neither is checked: a zero
// yoko makes the view non-finite. Does not redraw or refit. Needs a linked window (-1 without).
TAVIX_CALL int Tavix_SetTatYok(int tate, int yoko);

// Writes the ratio's two parts. Returns -1 when none was given since the window was made; the parts
// (1 and 1 at first) are written all the same. Needs a linked window (-1 without, nothing written).
TAVIX_CALL int Tavix_GetTatYok(int* tate, int* yoko);

// Shows a ground box in the whole window, without a margin. (X1, Y1) is the south-west corner: sizes
// are not made positive, and a box that is negative both ways is shown at 1 pixel per metre. The home
// view stays. Redraws; returns 0. Needs a linked window (-1 without).
TAVIX_CALL int Tavix_Zom(double X1, double Y1, double X2, double Y2);

// The same for the square around a circle; radius in metres.
TAVIX_CALL int Tavix_Zom1(double X, double Y, double radius);

// Moves the view's centre to (X, Y) at the present scale and redraws. Returns 0; needs a linked window
// (-1 without).
TAVIX_CALL int Tavix_Pan(double X, double Y);

// Does nothing and returns 0; kept for hosts that call it.
TAVIX_CALL int Tavix_Mov(void);

// ---- Picking -----------------------------------------------------------------------------------
//
// A tap on a point posts WM_COMMAND to the window's parent, with the notify id given at the link in
// wParam and the point's key in lParam. In coordinate-capture mode every tap posts WM_COMMAND with the
// mode's own command id and 0, and Tavix_CrdGet gives the coordinate.

// Writes 1 when the pixel of (X, Y) lies in the drawing area, borders included, else 0. Returns 0.
TAVIX_CALL int Tavix_ChkCrd(double X, double Y, int* visible);

// Writes 1 when the four outermost points of a circle lie in the drawing area, else 0; a radius below
// 0.00001 m asks for the centre alone. Returns 0.
TAVIX_CALL int Tavix_ChkCir(double X, double Y, double radius, int* visible);

// Writes the client pixel where the stylus last left the window, and returns its y.
TAVIX_CALL int Tavix_GetLstPicCrd(int* x, int* y);

// Starts coordinate capture under this command id, and forgets a coordinate captured before.
TAVIX_CALL int Tavix_CrdStt(int command);

// Writes the coordinate that the latest tap has captured: that of the point it hit, else that of the
// ground. Returns -1 when there is none.
TAVIX_CALL int Tavix_CrdGet(double* X, double* Y);

// Ends coordinate capture and forgets the coordinate. Returns 0.
TAVIX_CALL int Tavix_CrdEnd(void);

// ---- Points ------------------------------------------------------------------------------------

// Enters a point with the selected point legend, or replaces everything but the key of the point
// that has this key. With auto-redraw on a new point is drawn at once; an old one redraws the
// window unless nothing changed (coordinates within 1e-5 m).
TAVIX_CALL int Tavix_EntPnt(int key, int number, CString name, double x, double y);

// Changes a point's legend number. Returns -1 for an unknown key.
TAVIX_CALL int Tavix_ChgPntHid(int key, short legend);

// Changes a point's number and name. Returns -1 for an unknown key.
TAVIX_CALL int Tavix_ChgPntNoNam(int key, int number, CString name);

// Changes a point's coordinates. Returns -1 for an unknown key.
TAVIX_CALL int Tavix_ChgPntCrd(int key, double x, double y);

// Writes a point's number and name. Returns -1 for an unknown key.
TAVIX_CALL int Tavix_GetPntNoNam(int key, int* number, CString* name);

// Writes a point's coordinates. Returns -1 for an unknown key.
TAVIX_CALL int Tavix_GetPntCrd(int key, double* x, double* y);

// Removes a point and its memo. Never redraws. Returns -1 for an unknown key; a memo kept under it
// is removed all the same.
TAVIX_CALL int Tavix_DelEntPnt(int key);

// ---- Legend ------------------------------------------------------------------------------------
//
// Point marks: kind 1 dot, 2 circle, 3 diagonal cross, 4 upright cross, 5 triangle, 6 square, 7
// triangle pointing down, 8 filled circle, 9 filled triangle, 10 filled square, 11 filled triangle
// pointing down; prm1 mark size in pixels (0 or less: no mark), prm2 label height in pixels (0 or
// less: no label), prm3 label: non-zero shows the point number, 0 the name.
// Line styles: kind 101 solid, 102 dashed, 103 dotted, 104 dash and short dash, 105 dash and two
// short dashes; prm1 dash, prm2 gap and prm3 short dash in pixels.
// Width is the pen's in pixels, colour a COLORREF. The point calls take width and colour before the
// three parameters, the line calls after them. None of these calls redraws.

// Adds a point legend and writes its number, from 201 up. Such entries are not saved. Returns 0.
TAVIX_CALL int Tavix_AddPntHan(int kind, int width, int color, int prm1, int prm2, int prm3,
                               short* number);

// Changes legend entry `number` and makes it a point legend. Returns -1 for an unknown number.
TAVIX_CALL int Tavix_ChgPntHan(short number, int kind, int width, int color, int prm1, int prm2,
                               int prm3);

// Reads legend entry `number`. Returns -1 for an unknown number.
TAVIX_CALL int Tavix_GetPntHan(short number, int* kind, int* width, int* color, int* prm1,
                               int* prm2, int* prm3);

// Selects the legend that points entered from now on receive; it need not exist. -1 at first.
TAVIX_CALL int Tavix_SelPntHan(short number);

// Sets the title of built-in point legend 1..11, shown in the settings dialog and never saved.
// Returns -1 for any other number.
TAVIX_CALL int Tavix_PntHanTtl(short number, CString title);

// Adds a line legend and writes its number, from 201 up. Such entries are not saved. Returns 0.
TAVIX_CALL int Tavix_AddLinHan(int kind, short prm1, short prm2, short prm3, int width, int color,
                               short* number);

// Changes legend entry `number` and makes it a line legend. Returns -1 for an unknown number.
TAVIX_CALL int Tavix_ChgLinHan(short number, int kind, short prm1, short prm2, short prm3,
                               int width, int color);

// Reads legend entry `number`, its parameters cut to 16 bits. Returns -1 for an unknown number.
TAVIX_CALL int Tavix_GetLinHan(short number, int* kind, short* prm1, short* prm2, short* prm3,
                               int* width, int* color);

// Selects the legend that lines entered from now on receive; it need not exist. -1 at first.
TAVIX_CALL int Tavix_SelLinHan(short number);

}  // extern "C"
