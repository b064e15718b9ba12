// A host in Pascal (Delphi, Free Pascal for Windows): a window with a plot that fills it, ten
// points, two lines and a clothoid, a new plot for each new size, and a title that says which point
// was tapped.
program Sample;

{$IFDEF FPC}{$MODE DELPHI}{$CODEPAGE UTF8}{$ENDIF}
{$APPTYPE GUI}

uses
  Windows, Messages, SysUtils, TavixCalls;

const
  Plot = 0;
  Tapped = 100;
  Solid = 101;

type
  TSurveyPoint = record
    Name: UnicodeString;
    North, East: Double;  // metres
  end;

const
  Points: array[1..10] of TSurveyPoint = (
    (Name: '基準点1'; North: -35123.456; East: 12345.678),
    (Name: '基準点2'; North: -35098.112; East: 12391.040),
    (Name: '境1'; North: -35110.250; East: 12360.500),
    (Name: '境2'; North: -35104.900; East: 12378.250),
    (Name: '境3'; North: -35119.300; East: 12383.775),
    (Name: '境4'; North: -35121.750; East: 12368.400),
    (Name: '街灯'; North: -35101.300; East: 12362.900),
    (Name: 'マンホール'; North: -35113.825; East: 12372.150),
    (Name: '電柱'; North: -35107.560; East: 12388.300),
    (Name: '水準点'; North: -35125.200; East: 12379.640));

var
  HasView: Integer = 0;

procedure EnterSurvey;
var
  Circles: SmallInt;
  Key: Integer;
begin
  TavixC_AddPntHan(Plot, 2, 1, $C00000, 10, 14, 0, @Circles);
  TavixC_SelPntHan(Plot, Circles);
  for Key := 1 to 10 do
    TavixC_EntPnt(Plot, Key, Key, PWideChar(Points[Key].Name), Points[Key].North,
      Points[Key].East);
  TavixC_SelLinHan(Plot, Solid);
  TavixC_EntLin(Plot, 3, 4);
  TavixC_EntLin(Plot, 4, 5);
  TavixC_FigStt(Plot, 1, Solid);
  TavixC_FigMdlClo(Plot, -35122.0, 12350.0, -35110.0, 12369.0, 0.0, 30.0, 40.0);
  TavixC_FigEnd(Plot);
end;

// A plot window keeps its size: another size takes another one.
procedure ShowPlot(Window: HWND);
var
  Client: TRect;
begin
  GetClientRect(Window, Client);
  if TavixC_LnkRct(Plot, Pointer(Window), 0, 0, Client.Right, Client.Bottom, Tapped) <> 0 then
    Exit;
  TavixC_Drw(Plot, HasView);
  TavixC_Dsp(Plot, 1);
  HasView := 1;
end;

procedure SayPoint(Window: HWND; Key: Integer);
var
  Name: array[0..63] of WideChar;
  Number, Length: Integer;
  North, East: Double;
  Title: UnicodeString;
begin
  if TavixC_GetPntNoNam(Plot, Key, @Number, Name, 64, @Length) <> 0 then
    Exit;
  if TavixC_GetPntCrd(Plot, Key, @North, @East) <> 0 then
    Exit;
  Title := UnicodeString(Name) + UnicodeString(Format('  X %.3f  Y %.3f', [North, East]));
  SetWindowTextW(Window, PWideChar(Title));
end;

function Answer(Window: HWND; Message: UINT; W: WPARAM; L: LPARAM): LRESULT; stdcall;
begin
  Result := 0;
  case Message of
    WM_SIZE:
      if W <> SIZE_MINIMIZED then
        ShowPlot(Window);
    WM_COMMAND:
      if W and $FFFF = Tapped then
        SayPoint(Window, L);
    WM_DESTROY:
      begin
        TavixC_Del(Plot);
        PostQuitMessage(0);
      end;
  else
    Result := DefWindowProcW(Window, Message, W, L);
  end;
end;

var
  Kind: WNDCLASSW;
  Window: HWND;
  Message: TMsg;

begin
  if TavixC_Crt(Plot) <> 0 then
    Halt(1);
  EnterSurvey;
  FillChar(Kind, SizeOf(Kind), 0);
  Kind.lpfnWndProc := @Answer;
  Kind.hInstance := HInstance;
  Kind.hCursor := LoadCursor(0, IDC_ARROW);
  Kind.lpszClassName := 'TavixSample';
  RegisterClassW(Kind);
  Window := CreateWindowExW(0, 'TavixSample', 'Tap a point',
    WS_OVERLAPPEDWINDOW or WS_CLIPCHILDREN, 20, 20, 480, 400, 0, 0, HInstance, nil);
  ShowWindow(Window, SW_SHOW);
  while GetMessageW(Message, 0, 0, 0) do
    if TavixC_PreTranslate(@Message) = 0 then  // the arrow keys
    begin
      TranslateMessage(Message);
      DispatchMessageW(Message);
    end;
end.
