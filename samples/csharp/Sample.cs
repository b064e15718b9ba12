// A host in C#: a form with a plot that fills it, ten points, two lines and a clothoid, a new plot
// for each new size, and a title that says which point was tapped.
using System;
using System.Drawing;
using System.Globalization;
using System.Runtime.InteropServices;
using System.Windows.Forms;
using Tavix;

internal sealed class SampleForm : Form, IMessageFilter
{
    private const int WM_COMMAND = 0x0111;
    private const uint Tapped = 100;
    private const short Solid = 101;

    private readonly Plot plot = new Plot(0);
    private bool hasView;

    private SampleForm()
    {
        Text = "Tap a point";
        Size = new Size(480, 400);
        EnterSurvey();
        Application.AddMessageFilter(this);
    }

    [STAThread]
    private static void Main()
    {
        Application.Run(new SampleForm());
    }

    // The arrow keys.
    public bool PreFilterMessage(ref Message message)
    {
        var raw = new RawMessage
        {
            Window = message.HWnd, Number = message.Msg, W = message.WParam, L = message.LParam
        };
        IntPtr memory = Marshal.AllocHGlobal(Marshal.SizeOf(typeof(RawMessage)));
        try
        {
            Marshal.StructureToPtr(raw, memory, false);
            return Plot.PreTranslate(memory);
        }
        finally
        {
            Marshal.FreeHGlobal(memory);
        }
    }

    protected override void OnSizeChanged(EventArgs e)
    {
        base.OnSizeChanged(e);
        if (WindowState != FormWindowState.Minimized) ShowPlot();
    }

    protected override void WndProc(ref Message message)
    {
        if (message.Msg == WM_COMMAND && ((long)message.WParam & 0xFFFF) == Tapped)
        {
            SayPoint((int)(long)message.LParam);
            return;
        }
        base.WndProc(ref message);
    }

    protected override void Dispose(bool disposing)
    {
        if (disposing) plot.Dispose();
        base.Dispose(disposing);
    }

    private void EnterSurvey()
    {
        var points = new[]  // north and east in metres
        {
            new { Name = "基準点1", North = -35123.456, East = 12345.678 },
            new { Name = "基準点2", North = -35098.112, East = 12391.040 },
            new { Name = "境1", North = -35110.250, East = 12360.500 },
            new { Name = "境2", North = -35104.900, East = 12378.250 },
            new { Name = "境3", North = -35119.300, East = 12383.775 },
            new { Name = "境4", North = -35121.750, East = 12368.400 },
            new { Name = "街灯", North = -35101.300, East = 12362.900 },
            new { Name = "マンホール", North = -35113.825, East = 12372.150 },
            new { Name = "電柱", North = -35107.560, East = 12388.300 },
            new { Name = "水準点", North = -35125.200, East = 12379.640 },
        };
        plot.SelectPointLegend(plot.AddPointLegend(2, 1, 0xC00000, 10, 14, false));
        for (int i = 0; i < points.Length; ++i)  // keys 1 to 10
        {
            plot.EnterPoint(i + 1, i + 1, points[i].Name, points[i].North, points[i].East);
        }
        plot.SelectLineLegend(Solid);
        plot.EnterLine(3, 4);
        plot.EnterLine(4, 5);
        plot.StartFigure(1, Solid);
        plot.Clothoid(-35122, 12350, -35110, 12369, 0, 30, 40);
        plot.EndFigure();
    }

    // A plot window keeps its size: another size takes another one.
    private void ShowPlot()
    {
        plot.Link(Handle, 0, 0, ClientSize.Width, ClientSize.Height, Tapped);
        plot.Draw(hasView);
        plot.Show(true);
        hasView = true;
    }

    private void SayPoint(int key)
    {
        PlotPoint point = plot.Point(key);
        Text = string.Format(CultureInfo.InvariantCulture, "{0}  X {1:0.000}  Y {2:0.000}",
                             point.Name, point.North, point.East);
    }

    [StructLayout(LayoutKind.Sequential)]
    private struct RawMessage
    {
        public IntPtr Window;
        public int Number;
        public IntPtr W;
        public IntPtr L;
        public uint Time;
        public int X;
        public int Y;
    }
}
