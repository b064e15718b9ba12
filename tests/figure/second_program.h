// Another program that uses the library, in a process of its own.
#pragma once

#include <windows.h>

#include <filesystem>
#include <string>

namespace tavix::test {

// Runs second_program with the environment of this moment. It is ended with the object.
class SecondProgram {
 public:
  SecondProgram();
  ~SecondProgram();
  SecondProgram(const SecondProgram&) = delete;
  SecondProgram& operator=(const SecondProgram&) = delete;

  // Has it obey a command; its main function lists them. The result; empty when there is no answer.
  std::string Ask(const std::string& command);

  // The root folder of the device as it sees it.
  std::filesystem::path Root();

  // Both wait until it is gone. EndByItself is false when it did not end, or not with success.
  bool EndByItself();
  void EndByForce();

 private:
  HANDLE process_ = nullptr;
  HANDLE commands_ = nullptr;
  HANDLE answers_ = nullptr;
};

}  // namespace tavix::test
