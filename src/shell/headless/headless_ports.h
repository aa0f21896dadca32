// SPDX-License-Identifier: MIT
// Ports and the keyer's delay on a machine without hardware: what was asked of them goes into the transcript.
#pragma once

#include "shell/headless/faults.h"
#include "shell/headless/hardware.h"
#include "shell/headless/headless_clock.h"
#include "shell/headless/transcript.h"
#include "shell/platform/delay.h"
#include "shell/platform/ports.h"

class HeadlessPorts : public Ports {
public:
    HeadlessPorts(Transcript& transcript, const Hardware& hardware, const Faults& faults)
        : transcript_(transcript), hardware_(hardware), faults_(faults) {}

    void write(int address, int byte) override;
    int read(int address) override;
    void reach(int) override {}
    void commIsAt(int) override {}
    void openComm(const std::string& port) override;
    void closeComm() override;
    bool commOpen() override { return open_; }
    void setDtr(bool on) override { tellLine("DTR", on); }
    void setRts(bool on) override { tellLine("RTS", on); }
    bool dsrHolding() override { return hardware_.linesOn.count(InputLine::Dsr) != 0; }
    std::vector<std::string> commPorts() override;
    /// No operation of the program, so nothing is told.
    void dropLines() override {}

private:
    void tellLine(const std::string& line, bool on);
    Transcript& transcript_;
    const Hardware& hardware_;
    const Faults& faults_;
    bool open_ = false;
};

class HeadlessDelay : public Delay {
public:
    HeadlessDelay(Transcript& transcript, const Hardware& hardware, HeadlessClock& clock)
        : transcript_(transcript), hardware_(hardware), clock_(clock) {}
    void begin() override {}
    void end() override {}
    void wait(std::int64_t units) override;
    void settle() override {}

private:
    Transcript& transcript_;
    const Hardware& hardware_;
    HeadlessClock& clock_;
};
