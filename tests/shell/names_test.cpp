// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <fstream>
#include <set>

#include "shell/forms/all_forms.h"
#include "structure/source_dir.h"

namespace {

std::set<std::string> fixedNames() {
    std::set<std::string> names;
    std::ifstream file(structure::sourceDir() / "tests" / "names.txt");
    for (std::string line; std::getline(file, line);) names.insert(line);
    return names;
}

std::set<std::string> registeredNames() {
    const Forms all;
    std::set<std::string> names;
    for (const forms::Form* const form : all.screen.forms()) {
        names.insert(form->name());
        for (const forms::Control* const control : form->controls())
            names.insert(form->name() + "." + control->name());
    }
    return names;
}

}  // namespace

TEST(Names, EveryFixedNameIsAControlOfItsForm) {
    const std::set<std::string> registered = registeredNames();
    ASSERT_GT(fixedNames().size(), 100u);
    for (const std::string& name : fixedNames()) EXPECT_TRUE(registered.count(name)) << name;
}

TEST(Names, EveryControlHasAFixedName) {
    const std::set<std::string> fixed = fixedNames();
    for (const std::string& name : registeredNames()) EXPECT_TRUE(fixed.count(name)) << name;
}

TEST(Names, NoFormHoldsTwoControlsOfOneName) {
    const Forms all;
    for (const forms::Form* const form : all.screen.forms()) {
        std::set<std::string> names;
        for (const forms::Control* const control : form->controls()) {
            EXPECT_TRUE(names.insert(control->name()).second) << form->name() << "." << control->name();
        }
    }
}
