#pragma once

#include "domain/DeviceRecords.h"

#include <tinyxml.h>
#include <vector>

/// Cameras with other values in each.
std::vector<CameraDevice> makeCameras(int count);

namespace bare
{

/// Appends an element to @p list for each camera.
void writeCameras(TiXmlElement& list, const std::vector<CameraDevice>& cameras);

/// Appends a camera to @p cameras for @p item and each sibling behind it.
void readCameras(const TiXmlElement* item, std::vector<CameraDevice>& cameras);

} // namespace bare
