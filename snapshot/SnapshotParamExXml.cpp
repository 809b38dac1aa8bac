// <SnapshotParamEX>
//     <SnapshotStorageParam ServerType="1" ServerPath="192.0.2.1/pictures" />
// </SnapshotParamEX>

#include "snapshot/SnapshotParamExXml.h"

#include "core/Frame.h"

#include <utility>
#include <vector>

SnapshotParamExXml::SnapshotParamExXml() = default;

SnapshotParamExXml::~SnapshotParamExXml() = default;

bool SnapshotParamExXml::createXmlString(const SnapshotParamEX& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("SnapshotParamEX");
    return create(param, node) && DomainXmlNode::toString(node, text);
}

bool SnapshotParamExXml::parseXmlString(const std::string& text, SnapshotParamEX& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "SnapshotParamEX", node) && parse(node, param);
}

bool SnapshotParamExXml::create(const SnapshotParamEX& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const SnapshotStorageParam& storage : param.getSnapshotStorageParamList())
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "SnapshotStorageParam");
        if (!createSnapshotStorageParam(storage, item)) return false;
    }
    return true;
}

bool SnapshotParamExXml::parse(const SafePointer<DomainXmlNode>& node, SnapshotParamEX& param) const
{
    if (!node) return false;

    std::vector<SnapshotStorageParam> storages;
    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        if (item->ValueStr() != "SnapshotStorageParam") continue;

        SnapshotStorageParam storage;
        if (!parseSnapshotStorageParam(frame::nodeOf(*item), storage)) return false;
        storages.push_back(std::move(storage));
    }
    param.getSnapshotStorageParamList() = std::move(storages);
    return true;
}

bool SnapshotParamExXml::createSnapshotStorageParam(const SnapshotStorageParam& storage,
                                                    SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("ServerType", storage.getServerType());
    node->setProperty("ServerPath", storage.getServerAddress());
    return true;
}

bool SnapshotParamExXml::parseSnapshotStorageParam(const SafePointer<DomainXmlNode>& node,
                                                   SnapshotStorageParam& storage) const
{
    if (!node) return false;

    storage.setServerType(frame::intProperty(node, "ServerType", 0));
    storage.setServerAddress(frame::textProperty(node, "ServerPath", ""));
    return true;
}
