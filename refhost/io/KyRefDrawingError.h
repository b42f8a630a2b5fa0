// KyRefDrawingError: why a drawing file can't be read: the JSON path of the
// offending member (`layers[12].color`) and what was expected there. The
// reader throws it from wherever it finds the fault; reading stops, and the
// caller turns it into the message of a failed open.
#pragma once

#include <stdexcept>
#include <string>

class KyRefDrawingError : public std::runtime_error {
public:
    KyRefDrawingError(const std::string& path, const std::string& problem)
        : std::runtime_error(path.empty() ? problem : path + ": " + problem),
          m_path(path),
          m_problem(problem) {}

    // The JSON path; empty for a fault of the file as a whole.
    const std::string& path() const { return m_path; }
    const std::string& problem() const { return m_problem; }

private:
    std::string m_path;
    std::string m_problem;
};
