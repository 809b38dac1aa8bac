#include "snapshot/SnapshotSteps.h"

#include "core/Conversions.h"
#include "core/Frame.h"

namespace frame
{

TiXmlElement& appendGroup(TiXmlNode& list, const std::string& deviceId, const std::string& deviceIp, int cameraId)
{
    TiXmlElement& group = appendElement(list, "DeviceInfo");
    setText(group, "deviceId", deviceId);
    setText(group, "deviceIp", deviceIp);
    setInt(group, "CameraId", cameraId);
    return group;
}

TiXmlElement* groupOf(TiXmlNode& list, const std::string& deviceId, int cameraId)
{
    TiXmlElement* group = list.FirstChildElement("DeviceInfo");
    for (; group != nullptr; group = group->NextSiblingElement())
    {
        const char* id = attributeOf(*group, "deviceId");
        const char* camera = attributeOf(*group, "CameraId");
        if (id != nullptr && camera != nullptr && id == deviceId && static_cast<int>(integerIn(camera)) == cameraId)
            return group;
    }
    return nullptr;
}

bool holdsGroup(const TiXmlDocument& document, const TiXmlNode* group)
{
    for (const TiXmlNode* list = document.FirstChild(); list != nullptr; list = list->NextSibling())
    {
        for (const TiXmlNode* child = list->FirstChild(); child != nullptr; child = child->NextSibling())
        {
            if (child == group) return true;
        }
    }
    return false;
}

} // namespace frame
