// KySampleHandles: the handles of the sample drawing. Each thing of the
// drawing gets its handle the first time its key is asked for, so that
// references can be written before or after what they refer to.
#pragma once

#include <map>
#include <string>

class KySampleHandles {
public:
    // The handle of `key` ("layout:Model"), as hexadecimal text.
    std::string of(const std::string& key);
    // A handle of its own for something nothing refers to.
    std::string next();

private:
    std::map<std::string, std::string> m_handles;
    unsigned m_next = 0x20;
};
