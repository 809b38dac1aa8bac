#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// How a device is: the "DeviceWorkState" document.
///
/// A missing child leaves its field; items are added to those that the lists of the record have.
class DeviceWorkStateXml : public IDomainXml
{
public:
    DeviceWorkStateXml();
    ~DeviceWorkStateXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setDeviceWorkState(const DeviceWorkState& state) { state_ = state; }
    DeviceWorkState& getDeviceWorkState() { return state_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const DeviceWorkState& state);
    static bool readElement(const TiXmlElement& element, DeviceWorkState& state);
    /// @}

private:
    DeviceWorkState state_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
