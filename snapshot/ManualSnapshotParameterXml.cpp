// <ManualSnapshotParameter CameraId="1">
//     <SnapshotParameter ... />
// </ManualSnapshotParameter>

#include "snapshot/ManualSnapshotParameterXml.h"

#include "core/Frame.h"
#include "snapshot/SnapshotParameterXml.h"

#include <utility>

ManualSnapshotParameterXml::ManualSnapshotParameterXml() = default;

ManualSnapshotParameterXml::~ManualSnapshotParameterXml() = default;

void ManualSnapshotParameterXml::createXmlNode()
{
    writeElement(document_, parameter_);
}

bool ManualSnapshotParameterXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool ManualSnapshotParameterXml::parseXmlString()
{
    return frame::parseRoot(text_, "ManualSnapshotParameter", document_, node_) && parseXmlNode();
}

bool ManualSnapshotParameterXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, parameter_);
}

TiXmlElement& ManualSnapshotParameterXml::writeElement(TiXmlNode& parent, const ManualSnapshotParameter& parameter)
{
    TiXmlElement& element = frame::appendElement(parent, "ManualSnapshotParameter");
    frame::setInt(element, "CameraId", parameter.getCameraId());

    SnapshotParameterXml::writeElement(element, parameter.getSnapshotParameter());
    return element;
}

bool ManualSnapshotParameterXml::readElement(const TiXmlElement& element, ManualSnapshotParameter& parameter)
{
    parameter.setCameraId(frame::intOf(element, "CameraId", 0));

    const TiXmlElement* child = element.FirstChildElement("SnapshotParameter");
    if (child != nullptr)
    {
        SnapshotParameter pictures;
        if (!SnapshotParameterXml::readElement(*child, pictures)) return false;
        parameter.getSnapshotParameter() = std::move(pictures);
    }
    return true;
}
