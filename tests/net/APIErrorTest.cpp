#include "net/APIError.h"
#include "net/WidgetClient.h"

#include <QCoreApplication>
#include <QTranslator>

using namespace loom;

namespace
{

APIError http(int status, std::optional<QString> code = {}, std::optional<QString> message = {})
{
    return {APIError::Http{.status = status, .code = std::move(code), .message = std::move(message)}};
}

/// Shows which texts are looked up.
class Brackets final : public QTranslator
{
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* context, const char* text, const char*, int) const override
    {
        return QStringLiteral("%1[%2]").arg(QLatin1String(context), QLatin1String(text));
    }
};

TEST(APIError, EachIsOneFixedSentenceThatIsLookedUpForTheLanguage)
{
    const QString server = QStringLiteral("the server's own words");
    struct Row {
        APIError error;
        const char* sentence;
    };
    for (const Row& row : {
             Row{{APIError::Network{server}}, "Couldn't reach LOOMSTREET. Try again."},
             Row{http(400, QStringLiteral("RATE_LIMITED"), server), "Too many attempts. Wait a moment and try again."},
             Row{http(403, QStringLiteral("UNAUTHORIZED"), server), "Your session has expired. Sign in again."},
             Row{http(400, QStringLiteral("NO_EMAIL"), server), "Enter your email address."},
             Row{http(400, QStringLiteral("BAD_INPUT"), server),
                 "Some of the details don't look right. Check them and try again."},
             Row{http(400, QStringLiteral("bad_input"), server), "That didn't work. Try again."},
             Row{http(404, {}, server), "That didn't work. Try again."},
             Row{http(500, QStringLiteral("OTHER"), server),
                 "LOOMSTREET is having trouble right now. Try again shortly."},
             Row{{APIError::GraphQL{{server}}}, "Something unexpected came back. Try again."},
             Row{{APIError::Decoding{server}}, "Something unexpected came back. Try again."},
             Row{{APIError::InvalidResponse{}}, "Something unexpected came back. Try again."},
             Row{{APIError::NotConfigured{}}, "The app is missing its configuration."},
             Row{{APIError::Offline{}}, "You appear to be offline. Check your connection and try again."},
             Row{{APIError::Timeout{}}, "The request timed out. Try again."},
         }) {
        EXPECT_EQ(errorDescription(row.error), QLatin1String(row.sentence));
        Brackets brackets;
        QCoreApplication::installTranslator(&brackets);
        EXPECT_EQ(errorDescription(row.error), QStringLiteral("Loomstreet[%1]").arg(QLatin1String(row.sentence)));
        QCoreApplication::removeTranslator(&brackets);
    }
}

TEST(APIError, ARefusalSaysWhatItsBodySaysAndElseWhatItsStatusMeans)
{
    const auto text = [](const char* value) {
        return std::optional(QString::fromUtf8(value));
    };
    struct Row {
        int status;
        const char* body;
        APIError error;
    };
    for (const Row& row : {
             Row{401, "{}", http(401, text("REAUTH"))},
             Row{401, "", http(401, text("REAUTH"))},
             Row{401, R"({"code":"BAD_INPUT"})", http(401, text("BAD_INPUT"))},
             Row{401, R"({"code":7,"message":7})", http(401, text("REAUTH"))},
             Row{401, R"({"code":null})", http(401, text("REAUTH"))},
             Row{429, "", http(429, text("RATE_LIMITED"))},
             Row{429, R"({"code":"SLOW"})", http(429, text("SLOW"))},
             Row{404, R"({"error":"gone"})", http(404, {}, text("gone"))},
             Row{404, R"({"error":"a","message":"b"})", http(404, {}, text("b"))},
             Row{404, R"({"error":"a","message":{}})", http(404, {}, text("a"))},
             Row{404, R"({"error":{"message":"a"}})", http(404)},
             Row{400, R"({"code":"","message":""})", http(400, text(""), text(""))},
             Row{400, R"(["code"])", http(400)},
             Row{400, R"("code")", http(400)},
             Row{503, "<html>503</html>", http(503)},
             Row{503, R"({"code":"A",)", http(503)},
             Row{302, "", http(302)},
         })
        EXPECT_EQ(APIError{backendError(row.status, row.body)}, row.error) << row.body;
}

TEST(APIError, AnAnswerWithoutDataIsAnObject)
{
    EXPECT_EQ(decodeOKResponse("{}"), ApiResult<OKResponse>(OKResponse{}));
    EXPECT_EQ(decodeOKResponse(R"({"code":"A","message":"b","x":1})"),
              ApiResult<OKResponse>(OKResponse{.code = QStringLiteral("A"), .message = QStringLiteral("b")}));
    EXPECT_EQ(decodeOKResponse(R"({"code":1})"), ApiResult<OKResponse>(OKResponse{}));
    for (const char* const body : {"", "[]", "null", "\"ok\"", "{", "<html>"}) {
        const ApiResult<OKResponse> response = decodeOKResponse(body);
        ASSERT_FALSE(response) << body;
        EXPECT_TRUE(response.error().error().as<APIError::Decoding>()) << body;
    }
}

} // namespace
