/// @file
/// A folder for the files of a test.
#pragma once

#include <algorithm>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include <QTemporaryDir>

namespace Testing {

/// Empty at first, and removed with all that is in it.
class Folder
{
public:
    std::string path() const { return m_folder.path().toStdString(); }
    std::string path(std::string const & name) const { return path() + '/' + name; }

    /// Writes a file in the folder or in one below it, which is made. Returns its path.
    std::string write(std::string const & name, std::string_view bytes) const
    {
        std::filesystem::create_directories(std::filesystem::path(path(name)).parent_path());
        std::ofstream(path(name), std::ios::binary) << bytes;
        return path(name);
    }

    std::string read(std::string const & name) const
    {
        std::ifstream file(path(name), std::ios::binary);
        EXPECT_TRUE(file) << name;
        return {std::istreambuf_iterator<char>(file), {}};
    }

    /// The files in it, sorted, with their folders below it.
    std::vector<std::string> files() const
    {
        std::vector<std::string> names;
        for (auto const & entry : std::filesystem::recursive_directory_iterator(path()))
            if (!entry.is_directory())
                names.push_back(entry.path().lexically_relative(path()).native());
        std::sort(names.begin(), names.end());
        return names;
    }

private:
    QTemporaryDir m_folder;
};

/// The text of the `Failure`, or of another exception, that the call throws; empty where it throws none.
template <class Call> std::string failureOf(Call const & call)
{
    try {
        call();
        return {};
    } catch (std::exception const & error) {
        return error.what();
    }
}

} // namespace Testing
