#include <cerrno>
#include <cstring>
#include <iostream>

#include <fcntl.h>
#include <unistd.h>

#include <effects/Version.h>
#include <inspect/FileNames.h>
#include <inspect/Messages.h>

#include "Command.h"
#include "Output.h"

#include <QString>
#include <QtGlobal>

namespace {

/// Passes Qt's messages on, but for the one about a folder that only sessions with a display have.
void handleMessage(QtMsgType, QMessageLogContext const &, QString const & message)
{
    if (!message.startsWith(QLatin1String("QStandardPaths: ")))
        Host::complain(message.toStdString());
}

/// Puts something unusable in the place of a standard stream that is closed: the next file that is opened would take
/// it.
void fillClosedStreams()
{
    // Those below are open by then, so each opens as itself.
    for (int const descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (fcntl(descriptor, F_GETFD) < 0)
            open("/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY);
}

/// The status, unless results were lost on their way out.
int finished(int status, int error)
{
    if (error == 0)
        return status;
    // When nobody reads on, nobody is to be told.
    if (error != EPIPE)
        Host::complain(std::string("standard output: ") + std::strerror(error));
    return Host::Status::badInput;
}

/// One line: what is wrong, and where to read on.
std::string usageFailure(CLI::App const & program, CLI::Error const & error)
{
    std::string command = "effectctl";
    std::string reason = error.what();
    if (auto const chosen = program.get_subcommands(); !chosen.empty())
        command += ' ' + chosen.front()->get_name();
    else if (auto const rest = program.remaining(); !rest.empty())
        reason = "there is no command or option \"" + rest.front() + '"';
    return reason + "; see " + command + " --help";
}

int run(CLI::App & program, int argc, char ** argv)
{
    try {
        program.parse(argc, argv);
        return Host::Status::done;
    } catch (CLI::RuntimeError const & error) {
        // Whoever threw it has told why.
        return error.get_exit_code();
    } catch (CLI::ParseError const & error) {
        if (error.get_exit_code() == 0)
            return program.exit(error);
        Host::complain(usageFailure(program, error));
        return Host::Status::wrongUsage;
    } catch (std::exception const & error) {
        Host::complain(error.what());
        return Host::Status::badInput;
    }
}

} // namespace

int main(int argc, char ** argv)
{
    fillClosedStreams();
    Host::keepFileNames();
    Host::StandardOutput output;
    Host::startMessages(argv[0], Host::complain);
    qInstallMessageHandler(handleMessage);

    CLI::App program("Reads, writes, converts and lists the effects of a video editor.", "effectctl");
    program.require_subcommand(1);
    program.set_version_flag("--version", EDITOREFFECTS_VERSION_STRING);
    Host::addList(program);
    Host::addDescribe(program);
    Host::addSchema(program);
    Host::addShow(program);
    Host::addArchive(program);
    Host::addCheck(program);
    Host::addDiff(program);
    Host::addPatch(program);
    Host::addEdit(program);
    Host::addSalvage(program);
    Host::addRedact(program);
    Host::addRelink(program);
    Host::addPack(program);
    Host::addUnpack(program);
    Host::addConvert(program);
    Host::addCatalogue(program);
    Host::addSearch(program);
    Host::addNew(program);
    Host::addGallery(program);
    Host::addLut(program);
    Host::addTool(program);
    Host::setExamples(program,
        "  effectctl list\n"
        "  effectctl describe Effect::TiltShift\n"
        "  effectctl show --class Effect::Crop\n"
        "  effectctl convert --class Effect::Blur --set intensity=20\n"
        "  effectctl catalogue --convert\n"
        "\n"
        "More about a command: effectctl COMMAND --help\n"
        "Status: 0 done, 1 bad input, 2 wrong usage. NO_COLOR in the environment switches colours off.");
    int const status = run(program, argc, argv);
    return finished(status, output.flush());
}
