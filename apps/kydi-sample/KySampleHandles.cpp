#include "KySampleHandles.h"

#include <cstdio>

std::string KySampleHandles::of(const std::string& key) {
    const auto found = m_handles.find(key);
    if (found != m_handles.end()) {
        return found->second;
    }
    return m_handles[key] = next();
}

std::string KySampleHandles::next() {
    char text[16] = {};
    std::snprintf(text, sizeof(text), "%X", m_next++);
    return text;
}
