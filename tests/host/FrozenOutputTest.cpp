// What the commands in tests/golden/v1/output printed in the first release: a name and the arguments a line, and
// NAME.json with the output, less what depends on the machine. Programs read it, so later releases only add to it.

#include <fstream>
#include <string>

#include <support/Kept.h>

#include "Effectctl.h"

#include <gtest/gtest.h>

namespace {

using nlohmann::json;

TEST(FrozenOutput, DocumentsKeepWhatTheyHad)
{
    std::string const folder = GOLDEN_FOLDER "/v1/output";
    std::ifstream commands(folder + "/commands.txt");
    int count = 0;
    for (std::string line; std::getline(commands, line); ++count) {
        SCOPED_TRACE(line);
        std::string const name = line.substr(0, line.find(' '));
        auto const run =
            Testing::shell(QString::fromStdString("cd '" + folder + "' && $effectctl " + line.substr(name.size())));
        ASSERT_EQ(run.status, 0) << run.errors;
        std::ifstream stored(folder + '/' + name + ".json");
        EXPECT_EQ(Testing::lost(json::parse(stored), json::parse(run.output), Testing::Lists::Grown), "");
    }
    EXPECT_EQ(count, 8);
}

} // namespace
