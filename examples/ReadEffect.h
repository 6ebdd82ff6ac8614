/// @file
/// Effects in files, as the examples read them.
#pragma once

#include <cerrno>
#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <string>
#include <system_error>

#include <EditorModel/EffectArchive.h>

/// Reads the effect in an archive of either form. Throws an exception whose text says which file is wrong, and why.
inline std::unique_ptr<Effect::Object> readEffect(std::string const & path)
{
    try {
        std::ifstream file(path, std::ios::binary);
        if (!file)
            throw std::system_error(errno, std::generic_category());
        std::string const bytes{std::istreambuf_iterator<char>(file), {}};
        std::size_t const start = bytes.find_first_not_of(" \t\r\n");
        bool const isJson = start != bytes.npos && bytes[start] == '{';
        return isJson ? Effect::Archive::fromJson(bytes) : Effect::Archive::fromBinary(bytes);
    } catch (std::exception const & error) {
        throw std::runtime_error(path + ": " + error.what());
    }
}
