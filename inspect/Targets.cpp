#include <inspect/Targets.h>

#include <filesystem>
#include <map>

#include <inspect/Files.h>

namespace Effect::Inspect {

namespace fs = std::filesystem;

namespace {

/// The folder of which the files that an argument names keep their places in it.
fs::path baseOf(std::string const & argument, std::string const & file)
{
    std::error_code ignored;
    if (fs::is_directory(argument, ignored))
        return argument;
    if (argument == file)
        return fs::path(file).parent_path();
    std::size_t const slash = argument.rfind('/', argument.find_first_of("*?["));
    return slash == argument.npos ? fs::path() : fs::path(argument.substr(0, slash + 1));
}

} // namespace

std::vector<Target> targets(std::vector<std::string> const & arguments, std::vector<std::string> const & suffixes)
{
    std::vector<Target> targets;
    for (std::string const & argument : arguments)
        for (File & file : expand({argument}, suffixes)) {
            Target target{std::move(file.name), {}, std::move(file.error)};
            if (target.error.empty() && target.file == "-")
                target.error = "-: standard input has no name under which it could be written";
            if (target.error.empty())
                target.relative = fs::path(target.file).lexically_relative(baseOf(argument, target.file)).native();
            if (target.error.empty() && target.relative.empty())
                target.relative = fs::path(target.file).native();
            targets.push_back(std::move(target));
        }
    return targets;
}

void refuseCollisions(std::vector<Target> & targets)
{
    std::map<std::string, std::string> taken;
    for (Target & target : targets) {
        if (!target.error.empty())
            continue;
        auto const [first, isFree] = taken.emplace(target.relative, target.file);
        if (isFree)
            continue;
        target.error = target.file + ": would be written to the same file as " + first->second + ": " + target.relative;
        target.relative.clear();
    }
}

} // namespace Effect::Inspect
