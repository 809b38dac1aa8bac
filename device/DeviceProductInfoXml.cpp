// <DeviceProductInfoList>
//     <DeviceProductInfo DeviceIp="192.0.2.30" DeviceBarCode="4098765" />
// </DeviceProductInfoList>

#include "device/DeviceProductInfoXml.h"

#include "core/Frame.h"

#include <utility>

DeviceProductInfoXml::DeviceProductInfoXml() = default;

DeviceProductInfoXml::~DeviceProductInfoXml() = default;

bool DeviceProductInfoXml::createXmlString(const std::vector<DeviceProductInfo>& products, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("DeviceProductInfoList");
    create(products, node);
    return DomainXmlNode::toString(node, text);
}

bool DeviceProductInfoXml::parseXmlString(const std::string& text, std::vector<DeviceProductInfo>& products) const
{
    SafePointer<DomainXmlNode> node;
    if (!DomainXmlNode::parse(text, "DeviceProductInfoList", node)) return false;

    parse(node, products);
    return true;
}

void DeviceProductInfoXml::create(const std::vector<DeviceProductInfo>& products, SafePointer<DomainXmlNode>& node)
{
    for (const DeviceProductInfo& product : products)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "DeviceProductInfo");
        createDeviceProductInfo(product, item);
    }
}

void DeviceProductInfoXml::createDeviceProductInfo(const DeviceProductInfo& product, SafePointer<DomainXmlNode>& node)
{
    node->setProperty("DeviceIp", product.getDeviceIp());
    node->setProperty("DeviceBarCode", product.getDeviceBarCode());
}

void DeviceProductInfoXml::parse(const SafePointer<DomainXmlNode>& node, std::vector<DeviceProductInfo>& products)
{
    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        DeviceProductInfo product;
        parseDeviceProductInfo(frame::nodeOf(*item), product);
        products.push_back(std::move(product));
    }
}

void DeviceProductInfoXml::parseDeviceProductInfo(const SafePointer<DomainXmlNode>& node, DeviceProductInfo& product)
{
    product.setDeviceIp(frame::textProperty(node, "DeviceIp", ""));
    product.setDeviceBarCode(frame::textProperty(node, "DeviceBarCode", ""));
}
