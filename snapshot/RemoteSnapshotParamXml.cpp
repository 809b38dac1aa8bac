// <RemoteSnapshotParam CameraID="1" Quality="2" PhotoFormat="3" />

#include "snapshot/RemoteSnapshotParamXml.h"

#include "core/Frame.h"

RemoteSnapshotParamXml::RemoteSnapshotParamXml() = default;

RemoteSnapshotParamXml::~RemoteSnapshotParamXml() = default;

bool RemoteSnapshotParamXml::createXmlString(const RemoteSnapshotParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("RemoteSnapshotParam");
    node->setProperty("CameraID", param.getCameraID());
    node->setProperty("Quality", param.getQuality());
    node->setProperty("PhotoFormat", param.getPhotoFormat());
    return DomainXmlNode::toString(node, text);
}

bool RemoteSnapshotParamXml::parseXmlString(const std::string& text, RemoteSnapshotParam& param) const
{
    SafePointer<DomainXmlNode> node;
    if (!DomainXmlNode::parse(text, "RemoteSnapshotParam", node)) return false;

    param.setCameraID(frame::intProperty(node, "CameraID", 0));
    param.setQuality(frame::intProperty(node, "Quality", 0));
    param.setPhotoFormat(frame::intProperty(node, "PhotoFormat", 0));
    return true;
}
