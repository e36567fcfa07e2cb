#include "adapters/qt/single_instance.h"

#include <QCoreApplication>

#include <iostream>
#include <string>

// test_instance_holder FOLDER DISPLAY asks for the mark, says what it got, and holds it until its input ends.
// Without arguments it does nothing.
int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    if (argc != 3)
        return 0;
    qt::SingleInstance instance("orvanta", argv[1], argv[2]);
    std::cout << (instance.already_running() ? "second" : "first") << std::endl;
    std::string rest;
    std::getline(std::cin, rest);
}
