# Who may use whom. One row a layer: its folder below src/, then the layers that it may include (and, through them, what
# those may include). The build links by this table and the test "layers" reads every #include against it.
# The left column (no "ui" in its name) links no Widgets.
set(LAYERS
    "framework/core    :"
    "res               : framework/core"
    "resources/streams : framework/core"
    "image/picture     : resources/streams"
    "formats           : image/picture"
    "resources         : image/picture res"
    "archives          : resources"
    "image             : formats archives"
    "preview3d         : image"
    "app               : preview3d"
    "tool              : app"
    "framework/ui      : framework/core"
    "image/ui          : image framework/ui"
    "formats/ui        : image framework/ui"
    "archives/ui       : archives framework/ui"
    "preview3d/ui      : preview3d image/ui"
    "app/ui            : app image/ui formats/ui archives/ui preview3d/ui")

# The layers whose files form no circles: a header and its source are one file.
set(CIRCLE_FREE framework/core res resources/streams formats resources archives preview3d app tool
    image/ui archives/ui app/ui)
