#pragma once

#include "core/IDomainXml.h"
#include "domain/CommandRecords.h"

#include <string>
#include <tinyxml.h>

/// The queue of a camera's pictures and sound: the "AVDataQueue" document.
///
/// A missing attribute resets its field.
class AVDataQueueXml : public IDomainXml
{
public:
    AVDataQueueXml();
    ~AVDataQueueXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAVDataQueue(const AVDataQueue& queue) { queue_ = queue; }
    AVDataQueue& getAVDataQueue() { return queue_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AVDataQueue& queue);
    static bool readElement(const TiXmlElement& element, AVDataQueue& queue);
    /// @}

private:
    AVDataQueue queue_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
