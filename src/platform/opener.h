// Opening files and internet addresses with the user's own programs, and starting programs.
// Paths and addresses are UTF-8. Nothing here waits for what it starts.
#pragma once

#include <string>
#include <vector>

namespace kelvora {

// A program to start: its path and its arguments.
struct CommandLine {
  std::string program;
  std::vector<std::string> arguments;
};

class Opener {
 public:
  virtual ~Opener() = default;
  // Opens a path or an address with the program linked to its kind; false if none is.
  virtual bool Open(const std::string& address) = 0;
  // Lets the user choose a program, and opens the path with it.
  virtual void OpenWithChosenProgram(const std::string& path) = 0;
  // Starts the program with `folder` as its current folder; false if that fails.
  virtual bool Start(const CommandLine& command, const std::string& folder) = 0;
};

}  // namespace kelvora
