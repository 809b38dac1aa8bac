#include "bench/Benchmarks.h"
#include "bench/CameraDeviceFloor.h"
#include "bench/Comparison.h"
#include "bench/Floor.h"
#include "device/CameraDeviceXml.h"

namespace
{

std::string writeFloor(const std::vector<CameraDevice>& cameras)
{
    TiXmlDocument document;
    bare::writeCameras(bare::appendElement(document, "CameraDeviceList"), cameras);
    return bare::print(document);
}

bool readFloor(const std::string& text, std::vector<CameraDevice>& cameras)
{
    TiXmlDocument document;
    const TiXmlElement* element = bare::parse(document, text, "CameraDeviceList");
    if (element == nullptr) return false;

    bare::readCameras(element->FirstChildElement(), cameras);
    return true;
}

std::string writeNode(const std::vector<CameraDevice>& cameras)
{
    std::string text;
    CameraDeviceXml().createXmlString(cameras, text);
    return text;
}

bool readNode(const std::string& text, std::vector<CameraDevice>& cameras)
{
    return CameraDeviceXml().parseXmlString(text, cameras);
}

} // namespace

void addCameraDeviceList()
{
    const char* emptyText = "<CameraDeviceList><CameraDevice /></CameraDeviceList>";
    compare<std::vector<CameraDevice>>("CameraDeviceList.node", makeCameras(100), emptyText, {writeFloor, readFloor},
                                       {writeNode, readNode});
}
