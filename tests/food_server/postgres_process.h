// A PostgreSQL of the test's own, run by postgres.py and ended with this.
#pragma once

#include <string>
#include <sys/types.h>

namespace kelvora::test {

class PostgresProcess {
 public:
  PostgresProcess();
  PostgresProcess(const PostgresProcess&) = delete;
  PostgresProcess& operator=(const PostgresProcess&) = delete;
  ~PostgresProcess();

  // One word of those that postgres.py knows; its answer.
  std::string Do(const std::string& word);
  // The store line of a new, empty database.
  std::string Fresh() { return Do("fresh"); }

  // One for all tests of this process, started for the first that asks.
  static PostgresProcess& Shared();

 private:
  std::string ReadLine();
  pid_t process_ = -1;
  int input_ = -1;
  int output_ = -1;
};

}  // namespace kelvora::test
