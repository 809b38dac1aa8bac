// No text that passes the guard gives TinyXML a tree beyond the limits. Small limits, so that texts soon pass them.

#include "core/Frame.h"
#include "core/TextGuard.h"

#include <cstdint>
#include <cstdlib>

namespace
{

constexpr unsigned depthLimit = 3;
constexpr unsigned attributeLimit = 3;

void check(const TiXmlNode& node, unsigned depth)
{
    for (const TiXmlElement* child = node.FirstChildElement(); child != nullptr; child = child->NextSiblingElement())
    {
        unsigned attributes = 0;
        for (const TiXmlAttribute* each = child->FirstAttribute(); each != nullptr; each = each->Next())
            ++attributes;
        if (attributes > attributeLimit || (depth == depthLimit && !child->NoChildren())) std::abort();
        check(*child, depth + 1);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    // The parser's own limits stay in force; within the small ones nothing may exceed these.
    const bool passes = frame::withinLimits(text.c_str(), depthLimit, attributeLimit);
    TiXmlDocument document;
    frame::parse(document, text);
    if (passes) check(document, 0);
    return 0;
}
