#pragma once

#include <string>
#include <tinyxml.h>

/// The steps that the codecs of snapshots share, beside those of all codecs.
namespace [[gnu::visibility("hidden")]] frame
{

/// @name Groups
/// The "DeviceInfo" elements of a list of pictures.
/// @{

TiXmlElement& appendGroup(TiXmlNode& list, const std::string& deviceId, const std::string& deviceIp, int cameraId);

/// The first group of that device and camera; null if there is none. An element that lacks either attribute is none.
TiXmlElement* groupOf(TiXmlNode& list, const std::string& deviceId, int cameraId);

/// Whether @p group stands in a list of @p document. It is not looked into, and may be no more.
bool holdsGroup(const TiXmlDocument& document, const TiXmlNode* group);

/// @}

} // namespace frame
