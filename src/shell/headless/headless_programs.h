// SPDX-License-Identifier: MIT
#pragma once

#include "shell/headless/faults.h"
#include "shell/headless/transcript.h"
#include "shell/platform/programs.h"
#include "shell/show.h"

/// Other programs that are told of and never run.
class HeadlessPrograms : public Programs {
public:
    HeadlessPrograms(Transcript& transcript, const Faults& faults)
        : transcript_(transcript), faults_(faults) {}

    bool start(const std::string& commandLine) override {
        const bool started = !faults_.fails(Device::Run);
        transcript_.line("run " + quotedText(commandLine) + (started ? "" : " failed"));
        return started;
    }
    void help(const std::string& file, const std::string& topic) override {
        transcript_.line("help " + quotedText(file) + " " + quotedText(topic));
    }
    bool previousInstance() override { return false; }

private:
    Transcript& transcript_;
    const Faults& faults_;
};
