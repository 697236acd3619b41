#include "host/viewport/ModelShaders.h"

namespace Host::Shaders {

namespace {

const char version[] = "#version 330 core\n";

const char modelVertex[] = R"(
layout(location = 0) in vec3 position;
layout(location = 1) in vec3 normal;
layout(location = 2) in vec2 uv;
layout(location = 3) in float weight;
uniform mat4 toEye;
uniform mat4 toScreen;
out vec3 eyePlace;
out vec3 eyeNormal;
out vec2 imagePlace;
out float freedom;

void main()
{
    vec4 place = toEye * vec4(position, 1.0);
    eyePlace = place.xyz;
    eyeNormal = mat3(toEye) * normal;
    imagePlace = uv;
    freedom = weight;
    gl_Position = toScreen * place;
}
)";

const char modelFragment[] = R"(
in vec3 eyePlace;
in vec3 eyeNormal;
in vec2 imagePlace;
in float freedom;
uniform vec3 diffuse;
uniform sampler2D diffuseImage;
uniform sampler2D opacityImage;
uniform sampler2D weightColours;
uniform float mark;      // what the outline is drawn around
uniform vec3 glow;       // at the rim, of what is pointed out
uniform float stripe;    // in pixels
layout(location = 0) out vec4 colour;

const vec3 keyLight = vec3(-0.42, 0.64, 0.64);
const vec3 fillLight = vec3(0.86, 0.05, 0.50);

void main()
{
    vec3 ground = diffuse;
#ifdef DIFFUSE_IMAGE
    vec4 texel = texture(diffuseImage, imagePlace);
    if (texel.a < 0.5) {
        discard;
    }
    ground = texel.rgb;
#endif
#ifdef OPACITY_IMAGE
    if (texture(opacityImage, imagePlace).r < 0.5) {
        discard;
    }
#endif
#ifdef WEIGHTS
    ground = texture(weightColours, vec2((freedom * 255.0 + 0.5) / 256.0, 0.5)).rgb;
#endif
#ifdef NO_WEIGHTS
    float line = mod(gl_FragCoord.x + gl_FragCoord.y, 2.0 * stripe);
    ground = line < stripe ? vec3(0.36) : vec3(0.52);
#endif
    vec3 toViewer = normalize(-eyePlace);
    vec3 n = normalize(eyeNormal);
    float facing = dot(n, toViewer);
    n = facing < 0.0 ? -n : n;
    float key = max(dot(n, keyLight), 0.0);
    float fill = max(dot(n, fillLight), 0.0);
    float light = 0.30 + 0.62 * key + 0.20 * fill + 0.08 * abs(facing);
    float rim = 1.0 - abs(facing);
    colour = vec4(ground * light + glow * (0.12 + 0.88 * rim * rim), mark);
}
)";

const char gridVertex[] = R"(
layout(location = 0) in vec3 position;
layout(location = 1) in vec4 lineColour;
uniform mat4 toEye;
uniform mat4 toScreen;
out vec4 ink;
out vec2 fromMiddle;

void main()
{
    ink = lineColour;
    fromMiddle = position.xz;
    gl_Position = toScreen * (toEye * vec4(position, 1.0));
}
)";

const char gridFragment[] = R"(
in vec4 ink;
in vec2 fromMiddle;
uniform float radius;
layout(location = 0) out vec4 colour;

void main()
{
    float fade = 1.0 - smoothstep(0.35, 1.0, length(fromMiddle) / radius);
    colour = vec4(ink.rgb, ink.a * fade);
}
)";

const char outlineVertex[] = R"(
void main()
{
    // One triangle that covers the screen.
    vec2 corner = vec2(gl_VertexID == 1 ? 3.0 : -1.0, gl_VertexID == 2 ? 3.0 : -1.0);
    gl_Position = vec4(corner, 0.0, 1.0);
}
)";

const char outlineFragment[] = R"(
uniform sampler2D picture;
uniform int width;
uniform vec3 objectColour;
uniform vec3 materialColour;
layout(location = 0) out vec4 colour;

void main()
{
    ivec2 here = ivec2(gl_FragCoord.xy);
    vec4 own = texelFetch(picture, here, 0);
    ivec2 last = textureSize(picture, 0) - 1;
    float most = own.a;
    most = max(most, texelFetch(picture, min(here + ivec2(width, 0), last), 0).a);
    most = max(most, texelFetch(picture, max(here - ivec2(width, 0), ivec2(0)), 0).a);
    most = max(most, texelFetch(picture, min(here + ivec2(0, width), last), 0).a);
    most = max(most, texelFetch(picture, max(here - ivec2(0, width), ivec2(0)), 0).a);
    float edge = most - own.a;
    vec3 line = most > 0.75 ? materialColour : objectColour;
    colour = vec4(mix(own.rgb, line, smoothstep(0.1, 0.4, edge)), 1.0);
}
)";

} // namespace

QByteArray ModelVertex()
{
    return QByteArray(version) + modelVertex;
}

QByteArray ModelFragment(unsigned features)
{
    QByteArray source = version;
    const auto define = [&](Feature feature, const char* name) {
        if ((features & feature) != 0) {
            source += QByteArray("#define ") + name + '\n';
        }
    };
    define(DiffuseImage, "DIFFUSE_IMAGE");
    define(OpacityImage, "OPACITY_IMAGE");
    define(Weights, "WEIGHTS");
    define(NoWeights, "NO_WEIGHTS");
    return source + modelFragment;
}

QByteArray GridVertex()
{
    return QByteArray(version) + gridVertex;
}

QByteArray GridFragment()
{
    return QByteArray(version) + gridFragment;
}

QByteArray OutlineVertex()
{
    return QByteArray(version) + outlineVertex;
}

QByteArray OutlineFragment()
{
    return QByteArray(version) + outlineFragment;
}

} // namespace Host::Shaders
