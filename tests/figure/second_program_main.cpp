// A program with one instance that obeys commands: one on each line of its input, and for each a
// line with the result on its output. It ends with its input, or is ended by force.
#include <afx.h>
#include <tavix/tavix.h>

#include <cstdio>
#include <iostream>
#include <string>
#include <vector>

namespace {

// Creates and deletes the instance for ever. Each life saves a legend of its own: of point legend
// 3, the size is the colour modulo 20. It adds a figure, too.
[[noreturn]] void LiveWithoutEnd() {
  for (int color = 0;; color = (color + 1) % 1000000) {
    Tavix_Crt();
    Tavix_ChgPntHan(3, 3, 1, color, color % 20, 10, 1);
    Tavix_FigStt(1, 101);
    Tavix_FigMdlLin(0.0, 0.0, 1.0, 1.0);
    Tavix_Del();
  }
}

// Adds polylines for ever: figure n has n modulo 60 and two points more, all at (n, n).
[[noreturn]] void AddFiguresWithoutEnd() {
  for (int figure = 0;; ++figure) {
    const int count = figure % 60 + 2;
    const std::vector<double> places(static_cast<std::size_t>(count), figure);
    Tavix_FigStt(figure, 101);
    Tavix_FigMdlPly(count, places.data(), places.data());
  }
}

int Obey(const std::string& command) {
  if (command == "create") return Tavix_Crt();
  if (command == "delete") return Tavix_Del();
  if (command == "clear") return Tavix_DrwClr();
  if (command == "start figure 2") return Tavix_FigStt(2, 101);
  if (command == "add line") return Tavix_FigMdlLin(2.0, 2.0, 3.0, 3.0);
  return -1000;
}

void PrintUtf8(const CString& text) {
  char bytes[4 * MAX_PATH] = {};
  ::WideCharToMultiByte(CP_UTF8, 0, text, -1, bytes, sizeof(bytes), nullptr, nullptr);
  std::cout << bytes << std::endl;
}

}  // namespace

int main() {
  std::string command;
  while (std::getline(std::cin, command)) {
    if (!command.empty() && command.back() == '\r') command.pop_back();
    if (command == "live without end") {
      std::cout << 0 << std::endl;
      LiveWithoutEnd();
    }
    if (command == "add figures without end") {
      std::cout << Tavix_Crt() << std::endl;
      AddFiguresWithoutEnd();
    }
    if (command == "root") {
      PrintUtf8(AfxMapDevicePath(L"\\"));
    } else {
      std::cout << Obey(command) << std::endl;
    }
  }
  return 0;
}
