// Made from tavix.h by bindings/make_bindings.py; changes belong there.
// Units, ranges and codes: tavix_c.h.
using System;
using System.Runtime.InteropServices;

namespace Tavix
{
    public static class Constants
    {
        // What the layer itself refuses: the codes of its own.
        public const int NoSuchInstance = -101;  // an instance outside 0..4
        public const int WrongThread = -102;     // called on another thread than that of the instances
        public const int NullOutput = -103;      // a null where the call has to write
        public const int Failed = -104;          // no memory, or an exception within the call

        // Pixels that the column of buttons takes from the drawing area, at its right.
        public const int ButtonColumn = 20;

        // Lines and memos name their points by 16 bits of a key: the keys that stand for themselves
        // reach from -32768 to this one.
        public const int LargestLineKey = 32767;

        // The longest memo that is sure to be kept, in UTF-16 units: what one record of the
        // device's store holds.
        public const int LongestMemo = 32734;

        // The projection of the side view. With the plan `height` pixels high, a plan pixel that
        // lies `right` of its left edge and `up` from its bottom edge becomes the pixel
        //
        //     x = SideAcross * (SideUp * up + SideRight * right)
        //     y = height / 2 - SideRise * (SideUp * up - SideRight * right)
        //
        // A height above the height base adds its metres at the plan's scale, straight up.
        public const double SideRight = 0.9;                  // of a length to the right
        public const double SideUp = 0.7;                     // of a length upward
        public const double SideAcross = 0.8660254037844387;  // cos 30 degrees
        public const double SideRise = 0.5;                   // sin 30 degrees
    }

    // The calls of tavix_c.dll, one to one.
    public static class Calls
    {
        // ---- The layer

        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_Version();

        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_LastError([Out] char[] text, int capacity, out int length);

        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_PreTranslate(IntPtr message);

        // ---- Instances and their windows

        /// <summary>
        /// Makes instance `index` current for the calls of tavix.dll itself. No call of this layer
        /// needs it or changes it.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_SetIdx(int index);

        /// <summary>
        /// Writes the instance that is current for the calls of tavix.dll itself, 0 to 4.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_GetIdx(out int index);

        /// <summary>
        /// Creates the instance with empty stores. The legend comes from the file HANREI.DAT in the
        /// current data folder, or from built-in defaults; a file that another program holds is
        /// left alone. When the figure files cannot be made or belong to another process, the
        /// instance has no figures. Returns -1 when the instance exists already.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_Crt(int instance);

        /// <summary>
        /// Destroys the instance, its window included, and saves its legend. A legend whose file
        /// could not be read is saved only if it has been changed. Always returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_Del(int instance);

        /// <summary>
        /// Makes the instance's plot window in the place of the control `controlId` of `parent`,
        /// which is hidden and stays hidden. A window linked before is destroyed. The new window is
        /// hidden until TavixC_Dsp. `notifyId` is the command id under which the window reports to
        /// `parent`. `parent` must outlive the window. Returns -1 when the window could not be
        /// made, or would have more than 2^27 pixels (a back buffer of 512 MiB).
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_Lnk(int instance, IntPtr parent, uint controlId, uint notifyId);

        /// <summary>
        /// The same in a rectangle of `parent`'s client area, in pixels; right and bottom lie
        /// outside. One that leaves no client area is allowed: the window exists and shows nothing.
        ///
        /// TavixC_Del and both link calls may come while the instance's settings dialog is open,
        /// from a timer of the host for example: the dialog, and a colour chooser above it, end
        /// first as if cancelled.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_LnkRct(int instance, IntPtr parent, int left, int top, int right, int bottom, uint notifyId);

        /// <summary>
        /// The instance's plot window, owned by the library, or null when none is linked.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern IntPtr TavixC_Wnd(int instance);

        /// <summary>
        /// Shows or hides the plot window. Returns -1 when none is linked.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_Dsp(int instance, int show);

        /// <summary>
        /// Switches between the plan (0) and the 3-D side view, and turns the view back to 0
        /// degrees. Does not redraw. Needs a linked window. Always returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_Dsp3D(int instance, int @on);

        /// <summary>
        /// Shows or hides the column of buttons at the window's right edge; the drawing area
        /// becomes 20 pixels narrower or wider and the vertical ratio returns to 1. Without a
        /// window the choice is kept for the next one. Always returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_SetBtn(int instance, int show);

        /// <summary>
        /// Auto-redraw: while on, entering something new draws it at once and a change redraws the
        /// window. Off at first. Always returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_DrwFlg(int instance, int @on);

        /// <summary>
        /// Redraws the window; with `keepView` 0 the view is first fitted to the data. As with
        /// every redraw the window is invalidated, and its next paint shows the picture of this
        /// moment. With nothing to fit the view stays. The side view is fitted as seen from above:
        /// laid flat, its far right may lie outside of a narrow window; its height base is then the
        /// lowest height, rounded down to a whole metre. Needs a linked window (-1 without one);
        /// returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_Drw(int instance, int keepView);

        /// <summary>
        /// Empties the instance's data; the legend is kept. Does not redraw. Returns 0, or the code
        /// of the first store that could not be emptied; the stores after it are then untouched. -1
        /// also when the figure files cannot be made or belong to another process; once they are
        /// free it gives the instance its figures.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_DrwClr(int instance);

        // ---- View

        /// <summary>
        /// Turns the view: whole degrees 0..359, positive turns the picture clockwise. Does not
        /// redraw. Returns -1 for any other angle and changes nothing.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_SetAng(int instance, int degrees);

        /// <summary>
        /// Writes the view's angle in whole degrees, 0..359. Returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_GetAng(int instance, out int degrees);

        /// <summary>
        /// Sets the vertical exaggeration to tate / yoko (vertical / horizontal). Neither is
        /// checked: a zero yoko makes the view non-finite. Does not redraw or refit. Needs a linked
        /// window (-1 without).
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_SetTatYok(int instance, int tate, int yoko);

        /// <summary>
        /// Writes the ratio's two parts. Returns -1 when none was given since the window was made;
        /// the parts (1 and 1 at first) are written all the same. Needs a linked window (-1
        /// without, nothing written).
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_GetTatYok(int instance, out int tate, out int yoko);

        /// <summary>
        /// Shows a ground box in the whole window, without a margin. (X1, Y1) is the south-west
        /// corner: sizes are not made positive, and a box that is negative both ways is shown at 1
        /// pixel per metre. The view that the zoom-extents button returns to stays. Redraws;
        /// returns 0. Needs a linked window (-1 without).
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_Zom(int instance, double X1, double Y1, double X2, double Y2);

        /// <summary>
        /// The same for the square around a circle; radius in metres.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_Zom1(int instance, double X, double Y, double radius);

        /// <summary>
        /// Moves the view's centre to (X, Y) at the present scale and redraws. Returns 0; needs a
        /// linked window (-1 without).
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_Pan(int instance, double X, double Y);

        /// <summary>
        /// Does nothing and returns 0; kept for hosts that call it.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_Mov(int instance);

        // ---- Picking

        /// <summary>
        /// Writes 1 when the pixel of (X, Y) lies in the drawing area, borders included, else 0.
        /// Returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_ChkCrd(int instance, double X, double Y, out int visible);

        /// <summary>
        /// Writes 1 when four points of a circle, one to each side, lie in the drawing area, else
        /// 0; a radius below 0.00001 m asks for the centre alone. Compatibility: in a turned view
        /// the four are turned twice. Returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_ChkCir(int instance, double X, double Y, double radius, out int visible);

        /// <summary>
        /// Writes the client pixel where the stylus last left the window, and returns its y.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_GetLstPicCrd(int instance, out int x, out int y);

        /// <summary>
        /// Starts coordinate capture under this command id, and forgets a coordinate captured
        /// before.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_CrdStt(int instance, int command);

        /// <summary>
        /// Writes the coordinate that the latest tap has captured: that of the point it hit, else
        /// that of the ground. Returns -1 when there is none.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_CrdGet(int instance, out double X, out double Y);

        /// <summary>
        /// Ends coordinate capture and forgets the coordinate. Returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_CrdEnd(int instance);

        // ---- Points

        /// <summary>
        /// Enters a point with the selected point legend, or replaces everything but the key of the
        /// point that has this key. With auto-redraw on a new point is drawn at once; an old one
        /// redraws the window unless nothing changed (coordinates within 1e-5 m).
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_EntPnt(int instance, int key, int number, string name, double x, double y);

        /// <summary>
        /// Changes a point's legend number. Returns -1 for an unknown key.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_ChgPntHid(int instance, int key, short legend);

        /// <summary>
        /// Changes a point's number and name. Returns -1 for an unknown key.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_ChgPntNoNam(int instance, int key, int number, string name);

        /// <summary>
        /// Changes a point's coordinates. Returns -1 for an unknown key.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_ChgPntCrd(int instance, int key, double x, double y);

        /// <summary>
        /// Writes a point's number and name. Returns -1 for an unknown key.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_GetPntNoNam(int instance, int key, out int number, [Out] char[] name, int capacity, out int length);

        /// <summary>
        /// Writes a point's coordinates. Returns -1 for an unknown key.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_GetPntCrd(int instance, int key, out double x, out double y);

        /// <summary>
        /// Removes a point and its memo. Never redraws. Returns -1 for an unknown key; a memo kept
        /// under it is removed all the same.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_DelEntPnt(int instance, int key);

        // ---- Legend

        /// <summary>
        /// Adds a point legend and writes its number, from 201 up. Such entries are not saved.
        /// Returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_AddPntHan(int instance, int kind, int width, int color, int prm1, int prm2, int prm3, out short number);

        /// <summary>
        /// Changes legend entry `number` and makes it a point legend. Returns -1 for an unknown
        /// number.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_ChgPntHan(int instance, short number, int kind, int width, int color, int prm1, int prm2, int prm3);

        /// <summary>
        /// Reads legend entry `number`. Returns -1 for an unknown number.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_GetPntHan(int instance, short number, out int kind, out int width, out int color, out int prm1, out int prm2, out int prm3);

        /// <summary>
        /// Selects the legend that points entered from now on receive; it need not exist. -1 at
        /// first.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_SelPntHan(int instance, short number);

        /// <summary>
        /// Sets the title of built-in point legend 1..11, shown in the settings dialog and never
        /// saved. Returns -1 for any other number.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_PntHanTtl(int instance, short number, string title);

        /// <summary>
        /// Adds a line legend and writes its number, from 201 up. Such entries are not saved.
        /// Returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_AddLinHan(int instance, int kind, short prm1, short prm2, short prm3, int width, int color, out short number);

        /// <summary>
        /// Changes legend entry `number` and makes it a line legend. Returns -1 for an unknown
        /// number.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_ChgLinHan(int instance, short number, int kind, short prm1, short prm2, short prm3, int width, int color);

        /// <summary>
        /// Reads legend entry `number`, its parameters cut to 16 bits. Returns -1 for an unknown
        /// number.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_GetLinHan(int instance, short number, out int kind, out short prm1, out short prm2, out short prm3, out int width, out int color);

        /// <summary>
        /// Selects the legend that lines entered from now on receive; it need not exist. -1 at
        /// first.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_SelLinHan(int instance, short number);

        // ---- Lines

        /// <summary>
        /// Enters a line with the selected line legend. One that is there, in either direction,
        /// stays as it is: 0. Returns -1 when it could not be added. With auto-redraw on the line
        /// is drawn at once.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_EntLin(int instance, int keyA, int keyB);

        /// <summary>
        /// Changes a line's legend number. Returns 0, a code as above (when writing: -1 failed, -3
        /// unreadable, -4 no legend), or with auto-redraw on the redraw's result.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_ChgLinHid(int instance, int keyA, int keyB, short legend);

        /// <summary>
        /// Removes a line. Never redraws.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_DelEntLin(int instance, int keyA, int keyB);

        /// <summary>
        /// Removes all lines. Never redraws. Returns 0 when the database is open afterwards, else
        /// -1. One that could not be deleted is opened again with its lines: 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_ClrEntLin(int instance);

        // ---- Memos

        /// <summary>
        /// Keeps a text for a point key (16 bits of it, as lines do); the point need not exist. An
        /// empty text removes the memo of a key that has one, and is kept as an empty memo for a
        /// key that has none. A memo longer than Constants.LongestMemo may be refused. Returns 0,
        /// -1 it could not be added or written, as when the memo database cannot be opened, -3 it
        /// could not be read or deleted.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_EntPntMem(int instance, int key, string memo);

        /// <summary>
        /// Writes the memo of a key; an empty one when there is none or it cannot be read. Returns
        /// 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_GetPntMem(int instance, int key, [Out] char[] memo, int capacity, out int length);

        // ---- 3-D points

        /// <summary>
        /// Enters a point with the selected point legend, or replaces everything but the key of the
        /// one that has it. Returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_EntPnt3(int instance, int key, int number, string name, double x, double y, double z);

        /// <summary>
        /// Changes a point's legend number. Returns -1 for an unknown key; so do the calls below.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_ChgPnt3Hid(int instance, int key, short legend);

        /// <summary>
        /// Changes a point's number and name.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_ChgPnt3NoNam(int instance, int key, int number, string name);

        /// <summary>
        /// Writes a point's number and name.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_GetPnt3NoNam(int instance, int key, out int number, [Out] char[] name, int capacity, out int length);

        /// <summary>
        /// Writes a point's coordinates and height.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_GetPnt3Crd(int instance, int key, out double x, out double y, out double z);

        /// <summary>
        /// Removes a point; a memo of its key stays.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_DelEntPnt3(int instance, int key);

        // ---- Figures

        /// <summary>
        /// Starts a figure: its number and line legend. Returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_FigStt(int instance, int figure, int legend);

        /// <summary>
        /// A straight line. Returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_FigMdlLin(int instance, double x1, double y1, double x2, double y2);

        /// <summary>
        /// A circle; radius in metres. It is drawn as a solid line, whatever the kind of its
        /// legend. Returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_FigMdlCir(int instance, double x, double y, double radius);

        /// <summary>
        /// A polyline of `count` vertices; one without vertices is kept and draws nothing. Returns
        /// 0, or -1 for a null array when `count` is above 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_FigMdlPly(int instance, int count, double[] x, double[] y);

        /// <summary>
        /// The shorter arc of a radius in metres. A positive radius turns from x (north) toward y
        /// (east), that is clockwise on the map, a negative one the other way. Returns -1 when
        /// there is no such arc.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_FigMdlArc(int instance, double startX, double startY, double endX, double endY, double radius);

        /// <summary>
        /// A clothoid of parameter A between two radii, signed as for arcs, 0 for a straight end.
        /// Between two radii the second must be the smaller, otherwise a straight line is drawn.
        /// Returns -1 when a number is not finite, or when the curve would have more than ten
        /// million points (one for each degree of its tangent).
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_FigMdlClo(int instance, double startX, double startY, double endX, double endY, double startRadius, double A, double endRadius);

        /// <summary>
        /// Ends a figure; with auto-redraw on the window is redrawn. Returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_FigEnd(int instance);

        /// <summary>
        /// Deletes every piece of a figure number, and redraws as TavixC_FigEnd. Returns 0 also for
        /// a number without pieces, -1 when there are no figures at all.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_DelFig(int instance, int figure);

        // ---- Paper frame and scale bar

        /// <summary>
        /// Turns the frame off (0), or on with a sheet of `heightUnits` units of which
        /// `heightPerInch` make an inch, and the same for its width. Nothing is checked. Returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_SetWak(int instance, int @on, int heightPerInch, int heightUnits, int widthPerInch, int widthUnits);

        /// <summary>
        /// Shows or hides the outline, from the next paint on. Returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_WakDsp(int instance, int show);

        /// <summary>
        /// Gives the view the scale 1:N on the sheet, keeping the frame's origin. Returns -1 for N
        /// below 1.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_SetWakScl(int instance, int N);

        /// <summary>
        /// Writes N, truncated: after TavixC_SetWakScl(N) it may be N - 1, for the view keeps 1/N.
        /// The value stays the same until the view is zoomed. Compatibility: TavixC_Zom and
        /// TavixC_Zom1 do not change it.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_GetWakScl(int instance, out int N);

        /// <summary>
        /// Moves the view so that the frame's bottom left corner lies on (X, Y), starting from the
        /// corner that the last redraw found. It may miss by up to a pixel, as the middle of a
        /// frame of whole pixels is not quite that of the view: after a redraw TavixC_GetWakGen
        /// gives the corner as it is, and a second call, corrected by the difference, puts it
        /// right.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_SetWakGen(int instance, double X, double Y);

        /// <summary>
        /// Writes the ground under the frame's bottom left corner; zeros while the frame is off.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_GetWakGen(int instance, out double X, out double Y);

        /// <summary>
        /// Shows or hides the scale bar, from the next paint on. Returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_SclBarDsp(int instance, int show);

        // ---- Moving a point

        /// <summary>
        /// Takes the symbol of a point legend; nothing is drawn. Returns -1 for an unknown legend,
        /// -2 for one that is not a point legend; the state is then as it was.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_MvPntStt(int instance, int legend);

        /// <summary>
        /// From the next move on a line runs from (X, Y) to the mark. To be called before the first
        /// move. Returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_MvPntRub(int instance, double X, double Y);

        /// <summary>
        /// Moves the mark. Without a start it is a circle of 10 pixels, black on white. Returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_MvPntMov(int instance, double X, double Y);

        /// <summary>
        /// Takes the mark and the line off. Returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_MvPntEnd(int instance);

        // ---- Traced polyline

        /// <summary>
        /// Starts a trace; one that was under way is taken off. Returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_VoStt(int instance);

        /// <summary>
        /// Appends a vertex and draws the segment to it. Returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_VoAdd(int instance, double X, double Y);

        /// <summary>
        /// Takes the last vertex back. Returns -1 when there is none.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_VoDel(int instance);

        /// <summary>
        /// Writes the number of vertices. Returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_VoGet(int instance, out int count);

        /// <summary>
        /// Writes every vertex in order into two arrays of at least that many places, which may be
        /// null when there are none. Returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_VoLst(int instance, [Out] double[] X, [Out] double[] Y);

        /// <summary>
        /// Writes one vertex, counted from 0. Returns -1 for an index outside the polyline.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_VoIdx(int instance, int index, out double X, out double Y);

        /// <summary>
        /// Takes the polyline off and forgets it. Returns 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_VoEnd(int instance);

        // ---- One-bit picture

        /// <summary>
        /// Draws the plan into a picture of this size, with a north arrow in a free corner; one
        /// held before is freed. The picture shows the window's ground width, or one sheet while
        /// the paper frame is on. Needs a linked window. Returns -1 without one, and for a picture
        /// of more than 256 MiB (some 46,000 pixels square), with the one held before freed; else
        /// 0.
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_GrpStt(int instance, int height, int width);

        /// <summary>
        /// Writes 1 when the pixel is ink, else 0; rows count from the top. While the paper frame's
        /// outline shows, the two outermost rows and columns are ink, and so is any row above the
        /// picture and any column left of it. Everything else outside of the picture, and
        /// everything without a picture, is no ink; a column at or beyond the width never is.
        /// Returns 0; needs a linked window (-1 without).
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_GrpGet(int instance, int row, int column, out int ink);

        /// <summary>
        /// Frees the picture. Returns 0; needs a linked window (-1 without).
        /// </summary>
        [DllImport("tavix_c", CallingConvention = CallingConvention.Cdecl,
                   CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int TavixC_GrpEnd(int instance);
    }
}
