/*{
    "PERSISTENT_BUFFERS": {"store": {"WIDTH": "$WIDTH/2", "FLOAT": true}},
    "PASSES": [{"TARGET": "store"}, {"TARGET": ""}],
    "IMPORTED": [{"NAME": "grain", "PATH": "../grain.png"}]
}*/
void main() {}
