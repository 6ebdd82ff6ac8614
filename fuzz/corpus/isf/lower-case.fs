/*{"description": "a", "credit": "b", "inputs": [{"name": "x", "type": "Point2d", "default": [1, 2], "max": [3, 4]}],
"passes": [{"target": "t", "persistent": "true", "width": "$x"}], "persistent_buffers": ["t"], "imported": []}*/
void main() {}
