#include <inspect/Findings.h>

#include <inspect/Text.h>

namespace Effect::Inspect {

using Effect::Archive::Finding;
using Effect::Archive::Severity;
using nlohmann::json;

namespace {

template <class Value> json optional(std::optional<Value> const & value)
{
    return value ? json(*value) : json();
}

} // namespace

char const * toText(Severity severity)
{
    switch (severity) {
    case Severity::Note:
        return "note";
    case Severity::Warning:
        return "warning";
    case Severity::Error:
        return "error";
    }
    return "";
}

json toJson(Finding const & finding)
{
    return {{"severity", toText(finding.severity)}, {"code", finding.code}, {"pointer", optional(finding.pointer)},
        {"offset", optional(finding.offset)}, {"line", optional(finding.line)}, {"column", optional(finding.column)},
        {"message", finding.message}, {"suggestion", finding.suggestion.empty() ? json() : json(finding.suggestion)}};
}

json toJson(std::vector<Finding> const & findings)
{
    json all = json::array();
    for (Finding const & finding : findings)
        all.push_back(toJson(finding));
    return all;
}

std::string toText(Finding const & finding)
{
    std::string text = finding.message;
    if (finding.pointer && !finding.pointer->empty())
        text += ", at " + *finding.pointer;
    if (!finding.suggestion.empty())
        text += "; did you mean \"" + finding.suggestion + "\"?";
    return text;
}

std::string placeIn(std::string const & file, Finding const & finding)
{
    return finding.line ? file + ':' + std::to_string(*finding.line) + ':' + std::to_string(*finding.column) : file;
}

std::string toLine(std::string const & file, Finding const & finding)
{
    return placeIn(file, finding) + ": " + toText(finding.severity) + ": " + toText(finding);
}

} // namespace Effect::Inspect
