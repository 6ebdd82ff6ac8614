#include "Pairs.h"

namespace Host {

std::pair<std::string, std::string> halves(std::string const & pair)
{
    std::size_t const sign = pair.find('=');
    return {pair.substr(0, sign), pair.substr(sign + 1)};
}

CLI::Option * addPairs(
    CLI::App & command, std::string const & name, std::vector<std::string> & pairs, std::string const & help)
{
    return command.add_option(name, pairs, help)->check([](std::string const & pair) {
        std::size_t const sign = pair.find('=');
        return sign == 0 || sign == pair.npos ? pair + " is not of the form NAME=VALUE" : std::string();
    });
}

} // namespace Host
