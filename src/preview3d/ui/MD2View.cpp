#include "preview3d/ui/MD2View.h"

#include "preview3d/MD2Document.h"

#include <GL/gl.h>
#include <GL/glext.h>

namespace keltavlo {

namespace {

// Converts a model's records into vertices for OpenGL.
class CornerWriter {
public:
    CornerWriter(const MD2Document& shown, const TextureBuffer* usedTexture)
        : model(shown), frame(shown.GetFrames().front()), texture(usedTexture) {}

    void Write(const MD2Document::Triangle& triangle) const {
        glBegin(GL_TRIANGLES);
        for (int corner = 0; corner < 3; ++corner) {
            if (texture) WriteTexCoord(model.GetTexCoords()[Index(triangle.texCoords[corner])]);
            WriteVertex(frame.vertices[Index(triangle.vertices[corner])]);
        }
        glEnd();
    }

private:
    static std::size_t Index(std::int16_t index) { return static_cast<std::size_t>(index); }

    void WriteTexCoord(const MD2Document::TexCoord& place) const {
        glTexCoord2f(static_cast<float>(place.s) / static_cast<float>(texture->GetWidth()),
                     static_cast<float>(place.t) / static_cast<float>(texture->GetHeight()));
    }
    void WriteVertex(const MD2Document::Vertex& vertex) const {
        glVertex3f(static_cast<float>(vertex.x) * frame.scale[0] + frame.translate[0],
                   static_cast<float>(vertex.y) * frame.scale[1] + frame.translate[1],
                   static_cast<float>(vertex.z) * frame.scale[2] + frame.translate[2]);
    }

    const MD2Document& model;
    const MD2Document::Frame& frame;
    const TextureBuffer* texture; // null: draw without a texture
};

} // namespace

void MD2View::DrawScene() {
    const auto* model = dynamic_cast<const MD2Document*>(GetDocument());
    if (!model || model->GetFrames().empty()) return;
    glTranslated(GetOffset().x, GetOffset().y, GetOffset().z);
    IsTextured() ? PutOnTexture() : PutOnColor();
    const CornerWriter writer(*model, IsTextured() ? &GetTexture() : nullptr);
    for (const MD2Document::Triangle& triangle : model->GetTriangles())
        if (model->IsDrawable(triangle)) writer.Write(triangle);
}

// Shows the texture's own colors, without shading.
void MD2View::PutOnTexture() const {
    const TextureBuffer& texture = GetTexture();
    glTexImage2D(GL_TEXTURE_2D, 0, 4, texture.GetWidth(), texture.GetHeight(), 0, GL_BGRA, GL_UNSIGNED_BYTE,
                 texture.GetBytes());
    glEnable(GL_TEXTURE_2D);
    glColor3f(1, 1, 1);
}

void MD2View::PutOnColor() {
    glDisable(GL_TEXTURE_2D);
    glColor3f(1, 0, 0);
}

} // namespace keltavlo
