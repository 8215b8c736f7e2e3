// Frames as last reviewed by eye. After a change of
// looks, look at them again (ceremony_frames writes pictures) and take over the new fingerprints.
//
// Every build has to come to the same bytes: optimised, with sanitizers, by either compiler.
#include "ceremony/show/SampleShows.h"

#include <QCryptographicHash>

#include <gtest/gtest.h>

#include <ostream>

namespace vantle {
namespace {

constexpr std::array<double, 6> kMoments = {0.25, 0.55, 1.0, 1.5, 2.1, 2.9};

struct Golden {
    CeremonyVariant variant;
    double width;
    double height;
    std::array<const char*, kMoments.size()> fingerprints; ///< of each moment
};

constexpr Golden kGolden[] = {
    {CeremonyVariant::Nova,
     24,
     24,
     {"3e63b940be1e", "607d41c5c57a", "cba71e51969e", "c0776655a1d5", "b8497b0f4830",
      "05629d96da54"}},
    {CeremonyVariant::Nova,
     300,
     200,
     {"2e01e43a0795", "d23de1db1a56", "c6443ccc681a", "e24213cab616", "bf564dd97299",
      "48aefbc4cf8f"}},
    {CeremonyVariant::Nova,
     1440,
     900,
     {"eb453c391481", "efaa10a7da64", "f9f91693eb0f", "fed47b5b6b50", "f39faf76349b",
      "273bcdbe8769"}},
    {CeremonyVariant::Nova,
     2560,
     1440,
     {"27cf29618aed", "7b627e58e0d7", "7f8f1581bd7e", "fd4f47101e41", "e5ba52287598",
      "cd9b67c70c61"}},
    {CeremonyVariant::Rain,
     24,
     24,
     {"2623c6ba51f1", "0e61ce42fb8f", "b986e6f0ccd4", "f1cdc727816f", "b8497b0f4830",
      "05629d96da54"}},
    {CeremonyVariant::Rain,
     300,
     200,
     {"3cef8ec2c14b", "221fe5065e1d", "a4d26fd07b8d", "7ea0a86efeb9", "bab73af86618",
      "c1f297c51eac"}},
    {CeremonyVariant::Rain,
     1440,
     900,
     {"962859752a8c", "bad2d9fa274a", "225837657259", "154aa476b714", "4b8374819e22",
      "a1919544cf8d"}},
    {CeremonyVariant::Rain,
     2560,
     1440,
     {"19b283de0e6f", "d7329ddd03fa", "b7469e476e1b", "fdde62fcc3f3", "46c73332fa3f",
      "0fc92ced9a4f"}},
    {CeremonyVariant::Scan,
     24,
     24,
     {"fd822f671458", "44d79aa7df81", "df003c26c8e4", "90c1291c05df", "f78bb3409b44",
      "05629d96da54"}},
    {CeremonyVariant::Scan,
     300,
     200,
     {"117d4727424c", "b37e5869497e", "d35138dc559e", "e23a5dc290a4", "e1844a51e6ea",
      "23574812ea06"}},
    {CeremonyVariant::Scan,
     1440,
     900,
     {"74c8b04c59d8", "41beaf4c5f3a", "db4c0d4dc238", "578a56fafd5d", "906df547bd99",
      "54bb9ff7229b"}},
    {CeremonyVariant::Scan,
     2560,
     1440,
     {"65de3d4af0eb", "7ea5a895ecfc", "e37582e5b755", "7fae2205d915", "086b52fdb037",
      "21e6ca514822"}},
    {CeremonyVariant::Spiral,
     24,
     24,
     {"3a5a826686fe", "5f2a6da67254", "44ca6cf3d38f", "a48b193547be", "cbfa4128ca01",
      "05629d96da54"}},
    {CeremonyVariant::Spiral,
     300,
     200,
     {"598dfa22605a", "1e77b1df40d3", "2686f259e091", "d03e8c30e2a8", "78c065bcb12f",
      "2fe8dddc19e3"}},
    {CeremonyVariant::Spiral,
     1440,
     900,
     {"b8bcd5d6f22d", "da29d26f6dd6", "6d314c06aa40", "544736f7dff2", "151d4b2ba718",
      "2ac0e6753113"}},
    {CeremonyVariant::Spiral,
     2560,
     1440,
     {"88943e0e7430", "a390fb324115", "694ba8169ab1", "fcf9267e05a2", "2bd8e2f2d87d",
      "ed1188705a09"}},
    {CeremonyVariant::Wall,
     24,
     24,
     {"3674ec95e579", "7a55feeaadd6", "22451c06d958", "7cc4ad77d0c5", "93ac91f4e4ec",
      "05629d96da54"}},
    {CeremonyVariant::Wall,
     300,
     200,
     {"9363b4dedfa7", "8711e9374a8a", "58f76cba27a2", "c518d5cb4a7f", "ccf244642061",
      "f509023e4811"}},
    {CeremonyVariant::Wall,
     1440,
     900,
     {"2543bf8647b4", "ed420be28e90", "c127307ffd05", "683616bff95d", "61021d908e95",
      "ca7efa854398"}},
    {CeremonyVariant::Wall,
     2560,
     1440,
     {"00dd08e95869", "634cc7ce7331", "d25c84ba4f50", "f56164bad99f", "646dd1702906",
      "0a666affefdb"}},
};

QByteArray fingerprint(const CeremonyFrameRenderer& renderer) {
    const auto pixels = renderer.fieldBuffer();
    const QByteArrayView bytes(reinterpret_cast<const char*>(pixels.data()),
                               static_cast<qsizetype>(pixels.size_bytes()));
    return QCryptographicHash::hash(bytes.toByteArray(), QCryptographicHash::Sha256)
        .toHex()
        .left(12);
}

std::ostream& operator<<(std::ostream& out, const Golden& golden) {
    return out << ceremonyvariant::name(golden.variant).data() << ' ' << golden.width << " x "
               << golden.height;
}

class CeremonyFrameGolden : public testing::TestWithParam<Golden> {};

TEST_P(CeremonyFrameGolden, LooksAsItDid) {
    const Golden& golden = GetParam();
    CeremonyFrameRenderer renderer =
        tests::sampleShow(golden.variant, {golden.width, golden.height});
    for (std::size_t i = 0; i < kMoments.size(); ++i) {
        renderer.fillField(kMoments[i]);
        EXPECT_EQ(fingerprint(renderer).toStdString(), golden.fingerprints[i]) << kMoments[i];
    }
}

INSTANTIATE_TEST_SUITE_P(Shows, CeremonyFrameGolden, testing::ValuesIn(kGolden));

} // namespace
} // namespace vantle
