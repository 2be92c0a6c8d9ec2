// Begins to write to a data file, says "held", and ends when its standard input does.
//   hold-lock FILE
#include <exception>
#include <iostream>
#include <iterator>
#include <memory>
#include <string>

#include "data/DataConnection.h"
#include "data/engine/WriteBatch.h"
#include "screen/SystemClock.h"
#include "shell/modLorvane.h"

int main(int count, char* arguments[]) {
  if (count != 2) {
    std::cerr << "usage: hold-lock FILE\n";
    return 2;
  }
  try {
    const std::unique_ptr<lorvane::Engine> engine = lorvane::MakeFileEngine();
    lorvane::DiskFiles files;
    const std::unique_ptr<lorvane::Session> session =
        lorvane::Main({engine.get(), "", lorvane::FixedClock({2026, 1, 5})}, files);
    session->gDataConn->DataSource = arguments[1];
    session->gDataConn->OpenOrRaise();
    lorvane::WriteBatch batch(session->gDataConn->Connection());
    std::cout << "held" << std::endl;
    const std::string rest(std::istreambuf_iterator<char>(std::cin), {});
    batch.Commit();
  } catch (const std::exception& error) {
    std::cerr << "hold-lock: " << error.what() << '\n';
    return 1;
  }
  return 0;
}
