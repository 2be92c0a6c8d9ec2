#include "data/engine/FileKey.h"

#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <openssl/rand.h>

#include <span>

#include "basic/RuntimeError.h"

namespace lorvane::sql {
namespace {

constexpr int kRounds = 64000;

[[noreturn]] void Fail(const char* description) {
  throw RuntimeError(error_number::kEngineFailure, description);
}

void AppendHex(std::string& text, std::span<const unsigned char> bytes) {
  constexpr std::string_view digits = "0123456789abcdef";
  for (const unsigned char byte : bytes) {
    text += digits[byte >> 4U];
    text += digits[byte & 0xFU];
  }
}

}  // namespace

FileKey::FileKey(const Salt& salt, const std::string& password) : salt_(salt), password_(password) {
  if (PKCS5_PBKDF2_HMAC_SHA1(password_.data(), static_cast<int>(password_.size()), salt_.data(),
                             static_cast<int>(salt_.size()), kRounds, static_cast<int>(key_.size()),
                             key_.data()) != 1) {
    Fail("The key of the file could not be made from its password.");
  }
}

FileKey::~FileKey() {
  OPENSSL_cleanse(key_.data(), key_.size());
  OPENSSL_cleanse(password_.data(), password_.size());
}

bool FileKey::IsOf(const Salt& salt, const std::string& password) const {
  return salt == salt_ && password.size() == password_.size() &&
         CRYPTO_memcmp(password.data(), password_.data(), password.size()) == 0;
}

void FileKey::Use(const std::function<void(std::string_view)>& use) const {
  constexpr std::size_t length = 2 * (sizeof(key_) + sizeof(salt_)) + 3;
  std::string text;
  text.reserve(length);
  text += "x'";
  AppendHex(text, key_);
  AppendHex(text, salt_);
  text += "'";
  use(text);
  OPENSSL_cleanse(text.data(), text.size());
}

Salt MakeSalt() {
  Salt salt{};
  if (RAND_bytes(salt.data(), static_cast<int>(salt.size())) != 1) {
    Fail("There are no random numbers for the new file's protection.");
  }
  return salt;
}

std::shared_ptr<const FileKey> KeyRing::KeyOf(const Salt& salt, const std::string& password) {
  std::erase_if(keys_, [](const std::weak_ptr<const FileKey>& key) { return key.expired(); });
  for (const std::weak_ptr<const FileKey>& held : keys_) {
    if (std::shared_ptr<const FileKey> key = held.lock(); key && key->IsOf(salt, password)) {
      return key;
    }
  }
  ++derivations_;
  auto key = std::make_shared<const FileKey>(salt, password);
  keys_.push_back(key);
  return key;
}

}  // namespace lorvane::sql
