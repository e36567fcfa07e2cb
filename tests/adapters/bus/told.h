#pragma once

#include "adapters/bus/application_bridge.h"

#include <functional>
#include <string>
#include <vector>

// What the user is told, and does about it.
class Told : public bus::Notices {
public:
    void show_silence(std::function<void()> give_up) override {
        ++silences;
        if (gives_up)
            give_up();
        else if (on_silence)
            on_silence();
    }
    void hide_silence() override { ++answers; }
    void tell_loss(const std::string& sentence) override { losses.push_back(sentence); }

    int silences = 0, answers = 0;
    bool gives_up = false;
    std::function<void()> on_silence;
    std::vector<std::string> losses;
};
