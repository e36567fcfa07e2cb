#include "adapters/qt/qt_files.h"

#include <QCoreApplication>

#include <iostream>
#include <string>

// test_counter FILE ROUNDS adds 1 to the number in the file so many times, each under the file's lock.
// test_counter FILE hold takes the lock, says so, and keeps it until its input ends.
int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    if (argc != 3)
        return 2;
    const auto files = qt::make_files();
    const std::string path = argv[1], rounds = argv[2];
    if (rounds == "hold") {
        const auto lock = files->lock(path);
        std::cout << (lock ? "locked" : "refused") << std::endl;
        std::string rest;
        std::getline(std::cin, rest);
        return 0;
    }
    for (int round = 0; round < std::stoi(rounds); ++round) {
        const auto lock = files->lock(path);
        const auto content = files->read(path, 100);
        if (!lock || !content || !files->replace(path, std::to_string(std::stoi(content->bytes) + 1)))
            return 1;
    }
}
