// The plot window for .NET programs on Windows.
using System;

namespace Tavix
{
    /// <summary>A refusal: the call's code and the reason in words.</summary>
    public class TavixException : Exception
    {
        public TavixException(int code, string reason) : base(reason + " (" + code + ")")
        {
            Code = code;
        }

        public int Code { get; private set; }
    }

    /// <summary>A point as it was entered; north and east in metres.</summary>
    public struct PlotPoint
    {
        public int Number;
        public string Name;
        public double North;
        public double East;
    }

    /// <summary>
    /// One of the five instances, from construction to Dispose. The methods throw a TavixException
    /// where the library refuses; what each call does, with units and ranges, stands with the call
    /// of the same name in Calls. All calls come from one thread.
    /// </summary>
    public sealed class Plot : IDisposable
    {
        private delegate int TextReader(char[] text, int capacity, out int length);

        private readonly int instance;
        private bool disposed;

        public Plot(int instance)
        {
            Check(Calls.TavixC_Crt(instance));
            this.instance = instance;
        }

        public static Version LibraryVersion
        {
            get
            {
                int number = Calls.TavixC_Version();
                return new Version(number / 10000, number / 100 % 100, number % 100);
            }
        }

        /// <summary>The plot window's handle, zero without one.</summary>
        public IntPtr Window
        {
            get { return Calls.TavixC_Wnd(instance); }
        }

        public void Dispose()
        {
            if (disposed) return;
            disposed = true;
            Calls.TavixC_Del(instance);
        }

        /// <summary>Gives a message (MSG*) to the plot windows; true when it is not to be
        /// dispatched.</summary>
        public static bool PreTranslate(IntPtr message)
        {
            return Calls.TavixC_PreTranslate(message) != 0;
        }

        public void Link(IntPtr parent, int left, int top, int right, int bottom, uint notifyId)
        {
            Check(Calls.TavixC_LnkRct(instance, parent, left, top, right, bottom, notifyId));
        }

        public void Show(bool show)
        {
            Check(Calls.TavixC_Dsp(instance, show ? 1 : 0));
        }

        public void Draw(bool keepView)
        {
            Check(Calls.TavixC_Drw(instance, keepView ? 1 : 0));
        }

        public short AddPointLegend(int kind, int width, int color, int size, int labelHeight,
                                    bool showsNumber)
        {
            short number;
            Check(Calls.TavixC_AddPntHan(instance, kind, width, color, size, labelHeight,
                                         showsNumber ? 1 : 0, out number));
            return number;
        }

        public void SelectPointLegend(short number)
        {
            Check(Calls.TavixC_SelPntHan(instance, number));
        }

        public void SelectLineLegend(short number)
        {
            Check(Calls.TavixC_SelLinHan(instance, number));
        }

        public void EnterPoint(int key, int number, string name, double north, double east)
        {
            Check(Calls.TavixC_EntPnt(instance, key, number, name, north, east));
        }

        public PlotPoint Point(int key)
        {
            var point = new PlotPoint();
            int number = 0;
            Check(Calls.TavixC_GetPntCrd(instance, key, out point.North, out point.East));
            point.Name = Read((char[] text, int capacity, out int length) =>
                Calls.TavixC_GetPntNoNam(instance, key, out number, text, capacity, out length));
            point.Number = number;
            return point;
        }

        public void EnterLine(int keyA, int keyB)
        {
            Check(Calls.TavixC_EntLin(instance, keyA, keyB));
        }

        public void StartFigure(int figure, short legend)
        {
            Check(Calls.TavixC_FigStt(instance, figure, legend));
        }

        public void Clothoid(double startNorth, double startEast, double endNorth, double endEast,
                             double startRadius, double a, double endRadius)
        {
            Check(Calls.TavixC_FigMdlClo(instance, startNorth, startEast, endNorth, endEast,
                                         startRadius, a, endRadius));
        }

        public void EndFigure()
        {
            Check(Calls.TavixC_FigEnd(instance));
        }

        private static void Check(int code)
        {
            if (code < 0) throw new TavixException(code, Read(Calls.TavixC_LastError));
        }

        private static string Read(TextReader read)
        {
            int length;
            if (read(null, 0, out length) < 0) return "";
            var text = new char[length + 1];
            return read(text, text.Length, out length) < 0 ? "" : new string(text, 0, length);
        }
    }
}
