#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"

#include <string>
#include <tinyxml.h>

/// What a device does when somebody masks a camera: the "CameraMaskEvent" document.
///
/// A missing attribute resets its field. Actions are added to those that the record has.
class CameraMaskEventXml : public IDomainXml
{
public:
    CameraMaskEventXml();
    ~CameraMaskEventXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setCameraMaskEvent(const CameraMaskEvent& event) { event_ = event; }
    CameraMaskEvent& getCameraMaskEvent() { return event_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const CameraMaskEvent& event);
    static bool readElement(const TiXmlElement& element, CameraMaskEvent& event);
    /// @}

private:
    CameraMaskEvent event_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
