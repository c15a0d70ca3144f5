#include "model/Picture.h"

#include <cstdlib>

CPicture::CPicture() = default;
CPicture::CPicture(const CPicture& other) = default;
CPicture::~CPicture() { FreePicture(); }
CPicture& CPicture::operator=(const CPicture& other) = default;

bool CPicture::Load(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

bool CPicture::Save(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

void CPicture::FreePicture() {
  std::free(m_pPictureData);
  m_pPictureData = nullptr;
}

void CPicture::LoadPicture(const wchar_t* /*path*/) {}

void CPicture::LoadPictureFromMem(unsigned char* /*data*/, int /*length*/) {}
