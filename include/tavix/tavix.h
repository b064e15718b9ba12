// Tavix: a plot window of survey points, lines, figures and curves for field data collectors.
//
// Conventions of every call in this header:
//
//  1. The library keeps five plot instances, 0 to 4. One of them is current (at first 0); every
//     call but Tavix_SetIdx and Tavix_GetIdx works on the current instance only. Tavix_Del may
//     make another instance current.
//  2. Ground coordinates are doubles in metres: X is north, Y is east, and X always comes first.
//     Screen coordinates are whole pixels of the plot window's client area, origin top left, y
//     down. A ground position becomes a pixel by truncation toward zero, not by rounding.
//  3. Flags are bytes: zero is off, anything else is on.
//  4. A key is a number the host chooses to name a point. The point number is shown as a label and
//     identifies nothing.
//  5. A legend number names the symbol of a point or a line: 1 to 11 are the built-in point marks,
//     101 to 105 the built-in line styles, from 201 up the entries the host adds. The
//     kind of a built-in entry is its number until it is changed.
//  6. Strings are CString objects, by value on the way in, by pointer on the way out. Every pointer
//     is the caller's: the library writes through it during the call and keeps nothing of it. A
//     call with a null output is refused (-1). A refused call leaves its outputs untouched unless
//     the call says otherwise.
//  7. All calls and all window messages run on one thread, the host's user-interface thread.
//     Nothing is locked: what a call from another thread does is undefined. Builds with assertions
//     stop at one.
//  8. Calls return 0 for success. Refusals are negative:
//
//         -1   refused: unknown key or legend number, slot in use, no instance, no window, or the
//              window could not be made; each call says which of them it knows. Of any call, where
//              the system has no memory for it: it can be made again
//         other negative codes pass through from the store that failed; the call lists them
//
//     With the auto-redraw flag on, a call that redraws returns the redraw's result, which is 0.
//  9. Files: the legend lies in HANREI.DAT in the folder that the environment variable
//     ROVCOND_DATA_FOLDER names, else in Tavix\Data of the user's local application data; all
//     programs that use one folder share it, and the last to save wins. The figures of instance n
//     lie in FIGn.DAT and FIGn.XY, while it exists, in the folder that CE_DEVICE_ROOT names, else
//     in one that the process has to itself and that is removed with it. A host that sets these
//     variables does so before Tavix_Crt.
//
// Terms:
//
//     ground            the plane in which the survey's coordinates lie, in metres
//     plan, side view   the map, north up when it is not turned; the oblique view of the 3-D points
//     azimuth           a direction on the ground, clockwise from north
//     extents           the smallest ground box, sides north and east, around a set of points
//     zoom extents      fitting the view to the extents of the data: the button shows this view and
//                       the one before it in turn
//     zoom window       fitting the view to a rectangle that the user drags
//     vertical ratio    the factor by which the plan stretches the screen's vertical
//     legend            the numbered table of symbols
//     symbol            how a point or a line is drawn: mark, size, label and pen; line style,
//                       dashes and pen
//     figure            lines, circles, polylines, arcs and clothoids under one figure number; a
//                       piece is one of them
//     clothoid          the curve whose curvature grows with its length L: L times radius = A^2
//     paper frame       the outline of a sheet over the plan
//     one-bit picture   a picture of ink and white, one bit a pixel, for a printer
//
// Parts of the calls' names:
//
//     Ang angle             Ent enter              Mem memo             Sel select
//     Btn buttons           Fig figure             MvPnt moved point    Stt, End start, end
//     Chg change            Flg flag               NoNam number, name   Tat vertical (tate)
//     Chk check             Gen origin (genten)    Pic pick             Ttl title
//     Cir circle            Grp one-bit picture    Ply polyline         Vo traced polyline
//     Clo clothoid          Han legend (hanrei)    Pnt point            Wak paper frame (waku)
//     Clr clear             Hid legend number      Pnt3 3-D point       Wnd window
//     Crd coordinates       Idx index              Rct rectangle        Yok horizontal (yoko)
//     Crt, Del make, delete Lin line               Rub rubber line      Zom zoom
//     Drw draw              Lnk link a window      Scl scale
//     Dsp show              Lst last; list         SclBar scale bar
//                           Mdl piece of a figure
//
#pragma once

// The installed package has the framework in a folder of its own, beside this one.
#if __has_include("../tavix-framework/afxwin.h")
#include "../tavix-framework/afxwin.h"
#else
#include <afxwin.h>
#endif

// The first number of the library's version.
#define TAVIX_VERSION_MAJOR 1
// The second.
#define TAVIX_VERSION_MINOR 0
// The third.
#define TAVIX_VERSION_PATCH 0

#if defined(TAVIX_LIBRARY_BUILD)
// Imports a call from tavix.dll into a host; nothing in the library itself.
#define TAVIX_CALL
#else
#define TAVIX_CALL __declspec(dllimport)
#endif

// ---- Fixed values ------------------------------------------------------------------------------

// Pixels that the column of buttons takes from the drawing area, at its right.
inline constexpr int kTavixButtonColumn = 20;

// Lines and memos name their points by 16 bits of a key: the keys that stand for themselves reach
// from -32768 to this one.
inline constexpr int kTavixLargestLineKey = 32767;

// The longest memo that is sure to be kept, in UTF-16 units: what one record of the device's store
// holds.
inline constexpr int kTavixLongestMemo = 32734;

// The projection of the side view. With the plan `height` pixels high, a plan pixel that lies
// `right` of its left edge and `up` from its bottom edge becomes the pixel
//
//     x = kTavixSideAcross * (kTavixSideUp * up + kTavixSideRight * right)
//     y = height / 2 - kTavixSideRise * (kTavixSideUp * up - kTavixSideRight * right)
//
// A height above the height base adds its metres at the plan's scale, straight up.
inline constexpr double kTavixSideRight = 0.9;                  // of a length to the right
inline constexpr double kTavixSideUp = 0.7;                     // of a length upward
inline constexpr double kTavixSideAcross = 0.8660254037844387;  // cos 30 degrees
inline constexpr double kTavixSideRise = 0.5;                   // sin 30 degrees

extern "C" {

// ---- Instances and their windows ---------------------------------------------------------------

// Makes instance `index` current. An index outside 0..4 changes nothing.
TAVIX_CALL void Tavix_SetIdx(int index);

// Writes the current instance's index, 0 to 4; nothing when `index` is null.
TAVIX_CALL void Tavix_GetIdx(int* index);

// Creates the current instance with empty stores. The legend comes from the file HANREI.DAT in the
// current data folder, or from built-in defaults; a file that another program holds is left alone.
// When the figure files cannot be made or belong to another process, the instance has no figures.
// Returns -1 when the instance exists already.
TAVIX_CALL int Tavix_Crt(void);

// Destroys the current instance, its window included, and saves its legend. Of the instances that
// remain, the one with the highest index becomes current; when none remains, the index stays. A
// legend whose file could not be read is saved only if it has been changed. Always returns 0.
TAVIX_CALL int Tavix_Del(void);

// Makes the instance's plot window in the place of the control `controlId` of `parent`, which is
// hidden and stays hidden. A window linked before is destroyed. The new window is hidden until
// Tavix_Dsp. `notifyId` is the command id under which the window reports to `parent`. `parent` must
// outlive the window. Returns -1 when the window could not be made, or would have more than 2^27
// pixels (a back buffer of 512 MiB).
TAVIX_CALL int Tavix_Lnk(CWnd* parent, UINT controlId, UINT notifyId);

// The same in a rectangle of `parent`'s client area, in pixels; right and bottom lie outside. One
// that leaves no client area is allowed: the window exists and shows nothing.
//
// Tavix_Del and both link calls may come while the instance's settings dialog is open, from a timer
// of the host for example: the dialog, and a colour chooser above it, end first as if cancelled.
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

// Redraws the window; with `keepView` 0 the view is first fitted to the data. As with every redraw
// the window is invalidated, and its next paint shows the picture of this moment. With nothing to
// fit the view stays. The side view is fitted as seen from above: laid flat, its far right may lie
// outside of a narrow window; its height base is then the lowest height, rounded down to a whole
// metre. Needs a linked window (-1 without one); returns 0.
TAVIX_CALL int Tavix_Drw(BYTE keepView);

// Empties the instance's data; the legend is kept. Does not redraw. Returns 0, or the code of the
// first store that could not be emptied; the stores after it are then untouched. -1 also when the
// figure files cannot be made or belong to another process; once they are free it gives the
// instance its figures.
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

// Shows a ground box in the whole window, without a margin. (X1, Y1) is the south-west corner:
// sizes are not made positive, and a box that is negative both ways is shown at 1 pixel per metre.
// The view that the zoom-extents button returns to stays. Redraws; returns 0. Needs a linked window
// (-1 without).
TAVIX_CALL int Tavix_Zom(double X1, double Y1, double X2, double Y2);

// The same for the square around a circle; radius in metres.
TAVIX_CALL int Tavix_Zom1(double X, double Y, double radius);

// Moves the view's centre to (X, Y) at the present scale and redraws. Returns 0; needs a linked
// window (-1 without).
TAVIX_CALL int Tavix_Pan(double X, double Y);

// Does nothing and returns 0; kept for hosts that call it.
TAVIX_CALL int Tavix_Mov(void);

// ---- Picking -----------------------------------------------------------------------------------
//
// A tap on a point posts WM_COMMAND to the window's parent, with the notify id given at the link in
// wParam and the point's key in lParam. In coordinate-capture mode every tap posts WM_COMMAND with
// the mode's own command id and 0, and Tavix_CrdGet gives the coordinate.

// Writes 1 when the pixel of (X, Y) lies in the drawing area, borders included, else 0. Returns 0.
TAVIX_CALL int Tavix_ChkCrd(double X, double Y, int* visible);

// Writes 1 when four points of a circle, one to each side, lie in the drawing area, else 0; a
// radius below 0.00001 m asks for the centre alone. Compatibility: in a turned view the four are
// turned twice. Returns 0.
TAVIX_CALL int Tavix_ChkCir(double X, double Y, double radius, int* visible);

// Writes the client pixel where the stylus last left the window, and returns its y.
TAVIX_CALL int Tavix_GetLstPicCrd(int* x, int* y);

// Starts coordinate capture under this command id, and forgets a coordinate captured before.
TAVIX_CALL int Tavix_CrdStt(int command);

// Writes the coordinate that the latest tap has captured: that of the point it hit, else that of
// the ground. Returns -1 when there is none.
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
// three parameters, the line calls after them. None of these calls redraws. Pens, marks and labels
// of more than 100 pixels are drawn with 100; the values stay as given.
// The legend file keeps a width and parameters of 0..99; for points one of them may have three
// digits. A value that does not fit cuts its record short: the next load finds a bad file, and the
// whole legend is the built-in one again.
// Compatibility: an entity whose legend number has no entry is drawn like the entity before it in
// the same drawing pass (points, lines or figures). The first of a pass draws nothing, but for a
// circle, which is then black.

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

// ---- Lines -------------------------------------------------------------------------------------
//
// A line joins two points, named by their keys; the points need not exist yet, and a line is drawn
// while both do. A line keeps 16 bits of a key and of its own number: a key outside -32768..32767
// stands for the key with the same low 16 bits.
//
// Codes: -1 there is no such line, -2 the line database cannot be opened, -3 there are no lines, -4
// to -7 a record cannot be read, or (Tavix_DelEntLin, -7) deleted.

// Enters a line with the selected line legend. One that is there, in either direction, stays as it
// is: 0. Returns -1 when it could not be added. With auto-redraw on the line is drawn at once.
TAVIX_CALL int Tavix_EntLin(int keyA, int keyB);

// Changes a line's legend number. Returns 0, a code as above (when writing: -1 failed, -3
// unreadable, -4 no legend), or with auto-redraw on the redraw's result.
TAVIX_CALL int Tavix_ChgLinHid(int keyA, int keyB, short legend);

// Removes a line. Never redraws.
TAVIX_CALL int Tavix_DelEntLin(int keyA, int keyB);

// Removes all lines. Never redraws. Returns 0 when the database is open afterwards, else -1. One
// that could not be deleted is opened again with its lines: 0.
TAVIX_CALL int Tavix_ClrEntLin(void);

// ---- Memos -------------------------------------------------------------------------------------

// Keeps a text for a point key (16 bits of it, as lines do); the point need not exist. An empty
// text removes the memo of a key that has one, and is kept as an empty memo for a key that has
// none. A memo longer than kTavixLongestMemo may be refused. Returns 0, -1 it could not be added or
// written, as when the memo database cannot be opened, -3 it could not be read or deleted.
TAVIX_CALL int Tavix_EntPntMem(int key, CString memo);

// Writes the memo of a key; an empty one when there is none or it cannot be read. Returns 0.
TAVIX_CALL int Tavix_GetPntMem(int key, CString* memo);

// ---- 3-D points --------------------------------------------------------------------------------
//
// Points with a height for the side view (Tavix_Dsp3D). They are independent of the other points,
// equal keys included. None of these calls draws.

// Enters a point with the selected point legend, or replaces everything but the key of the one that
// has it. Returns 0.
TAVIX_CALL int Tavix_EntPnt3(int key, int number, CString name, double x, double y, double z);

// Changes a point's legend number. Returns -1 for an unknown key; so do the calls below.
TAVIX_CALL int Tavix_ChgPnt3Hid(int key, short legend);

// Changes a point's number and name.
TAVIX_CALL int Tavix_ChgPnt3NoNam(int key, int number, CString name);

// Writes a point's number and name.
TAVIX_CALL int Tavix_GetPnt3NoNam(int key, int* number, CString* name);

// Writes a point's coordinates and height.
TAVIX_CALL int Tavix_GetPnt3Crd(int key, double* x, double* y, double* z);

// Removes a point; a memo of its key stays.
TAVIX_CALL int Tavix_DelEntPnt3(int key);

// ---- Figures -----------------------------------------------------------------------------------
//
// Lines, circles, polylines, arcs and clothoids with a figure number and a line legend. A figure is
// started, made of one or more pieces, which are there at once, and ended. One number may cover
// several pieces and several figures. Errors of writing are not reported: a figure for which the
// disk has no room is not kept, and its call returns 0. All these calls return -1 while another
// process that uses the same CE_DEVICE_ROOT has the figure files.

// Starts a figure: its number and line legend. Returns 0.
TAVIX_CALL int Tavix_FigStt(int figure, int legend);

// A straight line. Returns 0.
TAVIX_CALL int Tavix_FigMdlLin(double x1, double y1, double x2, double y2);

// A circle; radius in metres. It is drawn as a solid line, whatever the kind of its legend. Returns
// 0.
TAVIX_CALL int Tavix_FigMdlCir(double x, double y, double radius);

// A polyline of `count` vertices; one without vertices is kept and draws nothing. Returns 0, or -1
// for a null array when `count` is above 0.
TAVIX_CALL int Tavix_FigMdlPly(int count, const double* x, const double* y);

// The shorter arc of a radius in metres. A positive radius turns from x (north) toward y (east),
// that is clockwise on the map, a negative one the other way. Returns -1 when there is no such arc.
TAVIX_CALL int Tavix_FigMdlArc(double startX, double startY, double endX, double endY,
                               double radius);

// A clothoid of parameter A between two radii, signed as for arcs, 0 for a straight end. Between
// two radii the second must be the smaller, otherwise a straight line is drawn. Returns -1 when a
// number is not finite, or when the curve would have more than ten million points (one for each
// degree of its tangent).
TAVIX_CALL int Tavix_FigMdlClo(double startX, double startY, double endX, double endY,
                               double startRadius, double A, double endRadius);

// Ends a figure; with auto-redraw on the window is redrawn. Returns 0.
TAVIX_CALL int Tavix_FigEnd(void);

// Deletes every piece of a figure number, and redraws as Tavix_FigEnd. Returns 0 also for a number
// without pieces, -1 when there are no figures at all.
TAVIX_CALL int Tavix_DelFig(int figure);

// ---- Paper frame and scale bar -----------------------------------------------------------------
//
// The outline of a sheet of paper over the plan. It keeps its place on the screen; the view decides
// which ground it covers. These calls do not redraw. Those on a frame return -1 while it is off;
// all need a linked window (-1 without).

// Turns the frame off (0), or on with a sheet of `heightUnits` units of which `heightPerInch` make
// an inch, and the same for its width. Nothing is checked. Returns 0.
TAVIX_CALL int Tavix_SetWak(BYTE on, int heightPerInch, int heightUnits, int widthPerInch,
                            int widthUnits);

// Shows or hides the outline, from the next paint on. Returns 0.
TAVIX_CALL int Tavix_WakDsp(BYTE show);

// Gives the view the scale 1:N on the sheet, keeping the frame's origin. Returns -1 for N below 1.
TAVIX_CALL int Tavix_SetWakScl(int N);

// Writes N, truncated: after Tavix_SetWakScl(N) it may be N - 1, for the view keeps 1/N. The value
// stays the same until the view is zoomed. Compatibility: Tavix_Zom and Tavix_Zom1 do not change
// it.
TAVIX_CALL int Tavix_GetWakScl(int* N);

// Moves the view so that the frame's bottom left corner lies on (X, Y), starting from the corner
// that the last redraw found. It may miss by up to a pixel, as the middle of a frame of whole
// pixels is not quite that of the view: after a redraw Tavix_GetWakGen gives the corner as it is,
// and a second call, corrected by the difference, puts it right.
TAVIX_CALL int Tavix_SetWakGen(double X, double Y);

// Writes the ground under the frame's bottom left corner; zeros while the frame is off.
TAVIX_CALL int Tavix_GetWakGen(double* X, double* Y);

// Shows or hides the scale bar, from the next paint on. Returns 0.
TAVIX_CALL int Tavix_SclBarDsp(BYTE show);

// ---- Moving a point ----------------------------------------------------------------------------
//
// A mark, and a line to it, that follow a position over the plot. All need a linked window (-1).

// Takes the symbol of a point legend; nothing is drawn. Returns -1 for an unknown legend, -2 for
// one that is not a point legend; the state is then as it was.
TAVIX_CALL int Tavix_MvPntStt(int legend);

// From the next move on a line runs from (X, Y) to the mark. To be called before the first move.
// Returns 0.
TAVIX_CALL int Tavix_MvPntRub(double X, double Y);

// Moves the mark. Without a start it is a circle of 10 pixels, black on white. Returns 0.
TAVIX_CALL int Tavix_MvPntMov(double X, double Y);

// Takes the mark and the line off. Returns 0.
TAVIX_CALL int Tavix_MvPntEnd(void);

// ---- Traced polyline ---------------------------------------------------------------------------
//
// A polyline over the plot that the host traces vertex by vertex. All need a linked window (-1).

// Starts a trace; one that was under way is taken off. Returns 0.
TAVIX_CALL int Tavix_VoStt(void);

// Appends a vertex and draws the segment to it. Returns 0.
TAVIX_CALL int Tavix_VoAdd(double X, double Y);

// Takes the last vertex back. Returns -1 when there is none.
TAVIX_CALL int Tavix_VoDel(void);

// Writes the number of vertices. Returns 0.
TAVIX_CALL int Tavix_VoGet(int* count);

// Writes every vertex in order into two arrays of at least that many places, which may be null when
// there are none. Returns 0.
TAVIX_CALL int Tavix_VoLst(double* X, double* Y);

// Writes one vertex, counted from 0. Returns -1 for an index outside the polyline.
TAVIX_CALL int Tavix_VoIdx(int index, double* X, double* Y);

// Takes the polyline off and forgets it. Returns 0.
TAVIX_CALL int Tavix_VoEnd(void);

// ---- One-bit picture ---------------------------------------------------------------------------

// Draws the plan into a picture of this size, with a north arrow in a free corner; one held before
// is freed. The picture shows the window's ground width, or one sheet while the paper frame is on.
// Needs a linked window. Returns -1 without one, and for a picture of more than 256 MiB (some
// 46,000 pixels square), with the one held before freed; else 0.
TAVIX_CALL int Tavix_GrpStt(int height, int width);

// Writes 1 when the pixel is ink, else 0; rows count from the top. While the paper frame's outline
// shows, the two outermost rows and columns are ink, and so is any row above the picture and any
// column left of it. Everything else outside of the picture, and everything without a picture, is
// no ink; a column at or beyond the width never is. Returns 0; needs a linked window (-1 without).
TAVIX_CALL int Tavix_GrpGet(int row, int column, int* ink);

// Frees the picture. Returns 0; needs a linked window (-1 without).
TAVIX_CALL int Tavix_GrpEnd(void);

}  // extern "C"
