#pragma once

#include "domain/InetAddr.h"

#include <tinyxml.h>

/// The endpoint of a stream inside the commands: an element under a name that they choose.
namespace [[gnu::visibility("hidden")]] frame
{

void writeAddress(TiXmlNode& parent, const char* name, const InetAddr& address);
/// Reads the first child of @p parent named @p name. Without it the address is left, and so are the parts that it
/// lacks.
void readAddress(const TiXmlElement& parent, const char* name, InetAddr& address);

} // namespace frame
