// A program with one instance that obeys commands: one on each line of its input, and for each a
// line with the result on its output. It ends with its input.
#include <afx.h>
#include <tavix/tavix.h>

#include <cstdio>
#include <iostream>
#include <string>

namespace {

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
    if (command == "root") {
      PrintUtf8(AfxMapDevicePath(L"\\"));
    } else {
      std::cout << Obey(command) << std::endl;
    }
  }
  return 0;
}
