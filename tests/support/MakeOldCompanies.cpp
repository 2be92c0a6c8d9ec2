// Makes a company of each earlier shape, each in a folder of its own named for the shape.
//   make-old-companies FOLDER
#include <exception>
#include <filesystem>
#include <iostream>

#include "support/OldCompany.h"

int main(int count, char* arguments[]) {
  if (count != 2) {
    std::cerr << "usage: make-old-companies FOLDER\n";
    return 2;
  }
  try {
    for (const lorvane::OldShape& shape : lorvane::OldShapes()) {
      const std::string folder = std::string(arguments[1]) + "/" + shape.name;
      std::filesystem::create_directories(folder);
      lorvane::MakeOldCompany(folder, shape);
    }
  } catch (const std::exception& error) {
    std::cerr << "make-old-companies: " << error.what() << '\n';
    return 1;
  }
  return 0;
}
