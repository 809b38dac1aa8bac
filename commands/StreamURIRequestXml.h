#pragma once

#include "core/IDomainXml.h"
#include "domain/InetAddr.h"

#include <string>
#include <tinyxml.h>

/// Asks for the address of a stream: the "StreamURIRequestInfo" document.
///
/// A missing attribute or child leaves its field.
class StreamURIRequestXml : public IDomainXml
{
public:
    StreamURIRequestXml();
    ~StreamURIRequestXml() override;

    /// Name of the account.
    const std::string& getUserName() const { return userName_; }
    void setUserName(const std::string& userName) { userName_ = userName; }

    /// Its password, in clear.
    const std::string& getPassword() const { return password_; }
    void setPassword(const std::string& password) { password_ = password; }

    /// The camera's number on the device.
    int getCameraID() const { return cameraID_; }
    void setCameraID(int cameraID) { cameraID_ = cameraID; }

    /// The stream's number on the camera.
    int getStreamID() const { return streamID_; }
    void setStreamID(int streamID) { streamID_ = streamID; }

    /// The transport of the stream, as the device numbers it.
    int getRtspTransferProtocol() const { return rtspTransferProtocol_; }
    void setRtspTransferProtocol(int rtspTransferProtocol) { rtspTransferProtocol_ = rtspTransferProtocol; }

    /// The endpoint that the request names.
    /// @{
    const InetAddr& getAddr() const { return addr_; }
    InetAddr& getAddr() { return addr_; }
    void setAddr(const InetAddr& addr) { addr_ = addr; }
    /// @}

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }
    /// @}

private:
    std::string userName_;
    std::string password_;
    int cameraID_ = 0;
    int streamID_ = 0;
    int rtspTransferProtocol_ = 0;
    InetAddr addr_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
