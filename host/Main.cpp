#include <cstdlib>
#include <iostream>

#include "Command.h"

#include <QString>
#include <QtGlobal>

#include <glog/logging.h>

namespace {

/// Passes Qt's messages on, but for the one about a folder that only sessions with a display have.
void handleMessage(QtMsgType, QMessageLogContext const &, QString const & message)
{
    if (!message.startsWith(QLatin1String("QStandardPaths: ")))
        std::cerr << "effectctl: " << message.toStdString() << '\n';
}

} // namespace

int main(int argc, char ** argv)
{
    // The library's messages go where ours go, and into no file.
    FLAGS_log_prefix = false;
    google::InitGoogleLogging(argv[0]);
    for (google::LogSeverity severity = 0; severity < google::NUM_SEVERITIES; ++severity)
        google::SetLogDestination(severity, "");
    qInstallMessageHandler(handleMessage);
    // Pictures are read, and nothing is shown.
    setenv("QT_QPA_PLATFORM", "offscreen", 0);

    CLI::App program("Reads, writes, converts and lists the effects of a video editor.", "effectctl");
    program.require_subcommand(1);
    program.set_version_flag("--version", EDITOREFFECTS_VERSION);
    Host::addList(program);
    Host::addShow(program);
    Host::addArchive(program);
    Host::addConvert(program);
    Host::addCatalogue(program);
    Host::addLut(program);
    Host::addTool(program);

    try {
        program.parse(argc, argv);
    } catch (CLI::RuntimeError const & error) {
        // Whoever threw it has told why.
        return error.get_exit_code();
    } catch (CLI::ParseError const & error) {
        return program.exit(error) == 0 ? Host::Status::done : Host::Status::wrongUsage;
    } catch (std::exception const & error) {
        Host::complain(error);
        return Host::Status::badInput;
    }
    std::cout.flush();
    return std::cout ? Host::Status::done : Host::Status::badInput;
}
