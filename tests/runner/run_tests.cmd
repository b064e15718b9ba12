@echo off
rem Runs all tests and leaves one text file to send back: tavix-test-report.txt
rem   run_tests.cmd [--limit SECONDS] [PROGRAM ...]
setlocal
if not exist "%~dp0bin\test_runner.exe" goto packed
"%~dp0bin\test_runner.exe" %*
set code=%errorlevel%
if "%~1"=="" pause
exit /b %code%

:packed
echo Please unpack the whole ZIP first, then start run_tests.cmd in the new folder.
chcp 65001 >nul
echo ZIP をすべて展開してから、新しいフォルダーの run_tests.cmd を実行してください。
pause
exit /b 2
