#include "food_server/postgres_process.h"

#include <fcntl.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace kelvora::test {

PostgresProcess::PostgresProcess() {
  int to_child[2];
  int from_child[2];
  if (pipe2(to_child, O_CLOEXEC) != 0 || pipe2(from_child, O_CLOEXEC) != 0) {
    throw std::runtime_error("no pipe");
  }
  process_ = fork();
  if (process_ == 0) {
    dup2(to_child[0], STDIN_FILENO);
    dup2(from_child[1], STDOUT_FILENO);
    execl(KELVORA_PYTHON, KELVORA_PYTHON, KELVORA_POSTGRES, static_cast<char*>(nullptr));
    _exit(127);
  }
  close(to_child[0]);
  close(from_child[1]);
  input_ = to_child[1];
  output_ = from_child[0];
  if (process_ < 0 || ReadLine().empty()) throw std::runtime_error("PostgreSQL didn't start");
}

PostgresProcess::~PostgresProcess() {
  close(input_);
  close(output_);
  waitpid(process_, nullptr, 0);
}

std::string PostgresProcess::ReadLine() {
  std::string line;
  for (char letter; read(output_, &letter, 1) == 1 && letter != '\n';) line += letter;
  return line;
}

std::string PostgresProcess::Do(const std::string& word) {
  const std::string line = word + "\n";
  if (write(input_, line.data(), line.size()) != static_cast<ssize_t>(line.size())) {
    throw std::runtime_error("PostgreSQL is gone");
  }
  std::string answer = ReadLine();
  if (answer.empty()) throw std::runtime_error("PostgreSQL did not " + word);
  return answer;
}

PostgresProcess& PostgresProcess::Shared() {
  static PostgresProcess process;
  return process;
}

}  // namespace kelvora::test
