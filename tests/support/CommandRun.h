#pragma once

#include "cli/CommandLine.h"

#include <QtCore/QByteArray>
#include <QtCore/QStringList>

#include <nlohmann/json.hpp>
#include <sstream>
#include <vector>

/// What the command-line companion answered, run in this process.
struct CommandRun
{
    int status;
    std::string out;
    std::string error;
};

inline CommandRun runCommand(const QStringList& arguments)
{
    std::vector<std::string> texts = {"orna-cli"};
    for (const QString& argument : arguments) {
        texts.push_back(argument.toStdString());
    }
    std::vector<const char*> argv;
    for (const std::string& text : texts) {
        argv.push_back(text.c_str());
    }
    std::ostringstream out;
    std::ostringstream error;
    const int status = TARN::runCommandLine(static_cast<int>(argv.size()), argv.data(), out, error);
    return {status, out.str(), error.str()};
}

/// JSON objects, one a line.
inline std::vector<nlohmann::json> linesOf(const std::string& text)
{
    std::vector<nlohmann::json> parsed;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        parsed.push_back(nlohmann::json::parse(line));
    }
    return parsed;
}

/// JSON written with single quotation marks in a test, for the eye's sake.
inline QByteArray quoted(QByteArray text)
{
    return text.replace('\'', '"');
}
