// Runs shaders in the Interactive Shader Format, all in one WebGL context: browsers keep 16 at most. A card has a plain
// canvas, into which the frame is copied.
//
// The format is GLSL of 2013, WebGL 2 takes GLSL ES 3.00. Three things that the former allows are rewritten: globals
// whose initialisers are not constant, functions with the name of a built-in one, and integers where a float is wanted.
'use strict';

Gallery.isf = (() => {
    const width = 480, height = 270;

    const types = {float: 'float', long: 'int', bool: 'bool', event: 'bool', point2D: 'vec2', color: 'vec4',
        image: 'sampler2D', audio: 'sampler2D', audioFFT: 'sampler2D'};
    const isPicture = input => types[input.TYPE] === 'sampler2D';

    const vertexHead = `#version 300 es
precision highp float;
#define varying out
#define attribute in
#define texture2D texture
in vec2 isf_position;
out vec2 isf_FragNormCoord;
#define vv_FragNormCoord isf_FragNormCoord
`;
    const vertexInit = `
void isf_vertShaderInit() { gl_Position = vec4(isf_position, 0.0, 1.0); isf_FragNormCoord = isf_position * 0.5 + 0.5; }
#define vv_vertShaderInit isf_vertShaderInit
#line 1
`;
    const fragmentHead = `#version 300 es
precision highp float;
precision highp int;
#define varying in
#define texture2D texture
#define texture2DRect(image, position) texture(image, (position) / vec2(textureSize(image, 0)))
in vec2 isf_FragNormCoord;
#define vv_FragNormCoord isf_FragNormCoord
out vec4 isf_Color;
#define gl_FragColor isf_Color
`;
    const macros = `
uniform int PASSINDEX;
uniform int FRAMEINDEX;
uniform vec2 RENDERSIZE;
uniform float TIME;
uniform float TIMEDELTA;
uniform vec4 DATE;
#define IMG_SIZE(image) vec2(textureSize(image, 0))
#define IMG_PIXEL(image, position) texture(image, (position) / IMG_SIZE(image))
#define IMG_NORM_PIXEL(image, position) texture(image, position)
#define IMG_THIS_PIXEL(image) texture(image, isf_FragNormCoord)
#define IMG_THIS_NORM_PIXEL(image) texture(image, isf_FragNormCoord)
`;

    // --- Sources ---

    // The source without comments; line breaks stay, so that the numbers of lines do.
    function withoutComments(source) {
        return source.replace(/\/\*[^]*?\*\/|\/\/.*/g, comment => comment.replace(/[^\n]/g, ' '));
    }

    const builtIn = new Set(('radians degrees sin cos tan asin acos atan sinh cosh tanh asinh acosh atanh pow exp log ' +
        'exp2 log2 sqrt inversesqrt abs sign floor trunc round roundEven ceil fract mod modf min max clamp mix step ' +
        'smoothstep isnan isinf length distance dot cross normalize faceforward reflect refract matrixCompMult ' +
        'outerProduct transpose determinant inverse texture').split(' '));
    const typeNames = '(?:float|int|uint|bool|[biu]?vec[234]|mat[234](?:x[234])?)';

    // Renames functions that a built-in one has the name of.
    function rename(source) {
        const definition = new RegExp(`\\b${typeNames}\\s+(\\w+)\\s*\\([^()]*\\)\\s*\\{`, 'g');
        const names = new Set([...source.matchAll(definition)].map(match => match[1]).filter(name => builtIn.has(name)));
        for (const name of names)
            source = source.replace(new RegExp(`\\b${name}(?=\\s*\\()`, 'g'), `isf_${name}`);
        return source;
    }

    // The parts of a text between commas that are in no brackets.
    function parts(text) {
        const found = [''];
        let depth = 0;
        for (const unit of text) {
            depth += '([{'.includes(unit) ? 1 : ')]}'.includes(unit) ? -1 : 0;
            if (unit === ',' && depth === 0)
                found.push('');
            else
                found[found.length - 1] += unit;
        }
        return found;
    }

    // Moves the initialisers of globals to the start of main, those of constants only when asked to.
    function moveInitialisers(source, constantsToo) {
        const declaration = new RegExp(`^(\\s*)(const\\s+)?((?:(?:high|medium|low)p\\s+)?${typeNames})\\s+([^;{}]*=[^;]*)$`);
        const assignments = [];
        let depth = 0, result = '', statement = '';
        for (const unit of source) {
            statement += unit;
            depth += unit === '{' ? 1 : unit === '}' ? -1 : 0;
            if (depth !== 0 || (unit !== ';' && unit !== '}' && unit !== '\n'))
                continue;
            // Lines of the preprocessor are no part of a statement.
            if (unit === '\n' && !/^\s*#/.test(statement) && statement.trim())
                continue;
            const match = unit === ';' && declaration.exec(statement.slice(0, -1));
            if (match && (constantsToo || !match[2])) {
                const names = [];
                for (const part of parts(match[4])) {
                    const at = part.indexOf('=');
                    names.push(at < 0 ? part : part.slice(0, at));
                    if (at >= 0)
                        assignments.push(`${part.slice(0, at).replace(/\[.*\]/, '')} = ${part.slice(at + 1)};`);
                }
                const breaks = statement.replace(/[^\n]/g, '').slice(match[1].replace(/[^\n]/g, '').length);
                statement = `${match[1]}${match[3]} ${names.join(',').replace(/\n/g, ' ')};${breaks}`;
            }
            result += statement;
            statement = '';
        }
        result += statement;
        const start = assignments.map(text => text.replace(/\n/g, ' ')).join(' ');
        return result.replace(/(\bvoid\s+main\s*\([^)]*\)\s*\{)/, (_, head) => `${head} ${start}`);
    }

    // --- The context ---

    let gl = null;
    let quad = null;
    let pictures = null;

    function start() {
        if (gl)
            return;
        const canvas = document.createElement('canvas');
        canvas.width = width;
        canvas.height = height;
        gl = canvas.getContext('webgl2', {antialias: false, premultipliedAlpha: false});
        if (!gl)
            throw new Error('This browser has no WebGL 2');
        gl.getExtension('EXT_color_buffer_float');
        gl.getExtension('OES_texture_float_linear');
        quad = gl.createBuffer();
        gl.bindBuffer(gl.ARRAY_BUFFER, quad);
        gl.bufferData(gl.ARRAY_BUFFER, new Float32Array([-1, -1, 1, -1, -1, 1, 1, 1]), gl.STATIC_DRAW);
        pictures = [upload(Gallery.testcard.canvas(width, height)), upload(otherPicture())];
    }

    // What a transition goes to, or a second input gets: the test card by night, seen in a mirror.
    function otherPicture() {
        const canvas = document.createElement('canvas');
        canvas.width = width;
        canvas.height = height;
        const context = canvas.getContext('2d');
        context.translate(width, 0);
        context.scale(-1, 1);
        context.drawImage(Gallery.testcard.canvas(width, height), 0, 0);
        context.globalCompositeOperation = 'multiply';
        context.fillStyle = '#3d6fb4';
        context.fillRect(0, 0, width, height);
        return canvas;
    }

    function texture(filter) {
        const made = gl.createTexture();
        gl.bindTexture(gl.TEXTURE_2D, made);
        for (const key of [gl.TEXTURE_WRAP_S, gl.TEXTURE_WRAP_T])
            gl.texParameteri(gl.TEXTURE_2D, key, gl.CLAMP_TO_EDGE);
        for (const key of [gl.TEXTURE_MIN_FILTER, gl.TEXTURE_MAG_FILTER])
            gl.texParameteri(gl.TEXTURE_2D, key, filter);
        return made;
    }

    function upload(canvas) {
        const made = texture(gl.LINEAR);
        gl.pixelStorei(gl.UNPACK_FLIP_Y_WEBGL, true);
        gl.texImage2D(gl.TEXTURE_2D, 0, gl.RGBA8, gl.RGBA, gl.UNSIGNED_BYTE, canvas);
        gl.pixelStorei(gl.UNPACK_FLIP_Y_WEBGL, false);
        return made;
    }

    // A sound to look at: a decaying spectrum, or a wave.
    function sound(isSpectrum) {
        const count = 256;
        const data = new Uint8Array(count * 4);
        for (let index = 0; index < count; ++index) {
            const part = index / count;
            const level = isSpectrum ? 220 * Math.exp(-4 * part) * (0.6 + 0.4 * Math.cos(part * 60)) :
                128 + 90 * Math.sin(part * 25) * Math.sin(part * Math.PI);
            data.set([level, level, level, 255], index * 4);
        }
        const made = texture(gl.LINEAR);
        gl.texImage2D(gl.TEXTURE_2D, 0, gl.RGBA8, count, 1, 0, gl.RGBA, gl.UNSIGNED_BYTE, data);
        return made;
    }

    // A pair of buffers: a pass writes the one while shaders read what the last frame left in the other.
    function buffer(bufferWidth, bufferHeight, isFloat) {
        const one = () => {
            const image = texture(isFloat && !gl.getExtension('OES_texture_float_linear') ? gl.NEAREST : gl.LINEAR);
            gl.texStorage2D(gl.TEXTURE_2D, 1, isFloat ? gl.RGBA32F : gl.RGBA8, bufferWidth, bufferHeight);
            const frame = gl.createFramebuffer();
            gl.bindFramebuffer(gl.FRAMEBUFFER, frame);
            gl.framebufferTexture2D(gl.FRAMEBUFFER, gl.COLOR_ATTACHMENT0, gl.TEXTURE_2D, image, 0);
            gl.clearColor(0, 0, 0, 0);
            gl.clear(gl.COLOR_BUFFER_BIT);
            return {image, frame};
        };
        return {width: bufferWidth, height: bufferHeight, read: one(), write: one()};
    }

    // --- Programs ---

    function compile(kind, source) {
        const shader = gl.createShader(kind);
        gl.shaderSource(shader, source);
        gl.compileShader(shader);
        if (gl.getShaderParameter(shader, gl.COMPILE_STATUS))
            return {shader};
        const log = gl.getShaderInfoLog(shader) || 'the shader cannot be compiled';
        gl.deleteShader(shader);
        return {log: log.replace(/\0/g, '').trim()};
    }

    // Compiles a body behind a head. In lines that the compiler rejects, integers become floats; after that, constants
    // are treated like other globals. Throws the compiler's first message about the body when nothing helps.
    function build(kind, head, body) {
        const source = rename(withoutComments(body).replace(/^[ \t]*#(version|extension).*$/gm, ''));
        let message = '';
        for (const constantsToo of [false, true]) {
            const lines = moveInitialisers(source, constantsToo).split('\n');
            const changed = new Set();
            for (;;) {
                const {shader, log} = compile(kind, head + lines.join('\n'));
                if (shader)
                    return shader;
                message ||= log;
                const rejected = [...log.matchAll(/ERROR: \d+:(\d+)/g)].map(match => match[1] - 1);
                const next = rejected.filter(line => line in lines && !changed.has(line));
                if (!next.length)
                    break;
                for (const line of next) {
                    changed.add(line);
                    lines[line] = lines[line].replace(/(^|[^\w.\[])(\d+)(?![\w.\]])/g, '$1$2.0');
                }
            }
        }
        throw new Error(message);
    }

    function link(vertexShader, fragmentShader) {
        const program = gl.createProgram();
        gl.attachShader(program, vertexShader);
        gl.attachShader(program, fragmentShader);
        gl.bindAttribLocation(program, 0, 'isf_position');
        gl.linkProgram(program);
        if (!gl.getProgramParameter(program, gl.LINK_STATUS))
            throw new Error((gl.getProgramInfoLog(program) || 'the shader cannot be linked').trim());
        return program;
    }

    // --- Sizes of passes ---

    // A number out of an expression such as "floor($WIDTH / 2.0)".
    function evaluate(expression, names) {
        const words = String(expression).match(/\$?[A-Za-z_]\w*|\d*\.?\d+(?:[eE][-+]?\d+)?|[-+*\/(),]/g) || [];
        const functions = {floor: Math.floor, ceil: Math.ceil, round: Math.round, min: Math.min, max: Math.max,
            abs: Math.abs, sqrt: Math.sqrt, pow: Math.pow};
        let at = 0;
        const primary = () => {
            const word = words[at++];
            if (word === '-')
                return -primary();
            if (word === '(') {
                const value = sum();
                ++at;
                return value;
            }
            if (word in functions && words[at] === '(') {
                const values = [];
                do {
                    ++at;
                    values.push(sum());
                } while (words[at] === ',');
                ++at;
                return functions[word](...values);
            }
            return word && word.startsWith('$') ? Number(names[word.slice(1)]) : Number(word);
        };
        const product = () => {
            let value = primary();
            while (words[at] === '*' || words[at] === '/')
                value = words[at++] === '*' ? value * primary() : value / primary();
            return value;
        };
        const sum = () => {
            let value = product();
            while (words[at] === '+' || words[at] === '-')
                value = words[at++] === '+' ? value + product() : value - product();
            return value;
        };
        const value = Math.round(sum());
        return Number.isFinite(value) ? Math.min(Math.max(value, 1), 4096) : null;
    }

    // --- Shaders ---

    const zero = {float: 0, long: 0, bool: false, event: false, point2D: [0, 0], color: [0, 0, 0, 1]};

    class Shader {
        // The texts of a settings record. `declaresInputs`: the shader has the uniforms of its inputs itself.
        constructor({config, pixelShader, vertexShader = '', declaresInputs = false}) {
            start();
            this.inputs = config.INPUTS || [];
            this.values = {};
            for (const input of this.inputs)
                if (!isPicture(input))
                    this.values[input.NAME] = input.DEFAULT ?? zero[input.TYPE] ?? 0;
            this.passes = (config.PASSES || []).length ? config.PASSES : [{}];
            this.frames = 0;
            this.last = 0;

            const targets = [...new Set(this.passes.map(pass => pass.TARGET).filter(Boolean))];
            const imported = (config.IMPORTED || []).map(image => image.NAME);
            const samplers = [...targets, ...imported].map(name => `uniform sampler2D ${name};\n`);
            const uniforms = declaresInputs ? '' :
                this.inputs.map(input => `uniform ${types[input.TYPE] || 'float'} ${input.NAME};\n`).join('');
            const common = macros + uniforms + samplers.join('');
            const vertex = build(gl.VERTEX_SHADER, vertexHead + common + vertexInit,
                vertexShader || 'void main() { isf_vertShaderInit(); }');
            const fragment = build(gl.FRAGMENT_SHADER, `${fragmentHead}${common}#line 1\n`, pixelShader);
            this.program = link(vertex, fragment);
            this.locations = {};

            const pictureInputs = this.inputs.filter(input => input.TYPE === 'image').map(input => input.NAME);
            this.textures = new Map();
            [...pictureInputs, ...imported].forEach((name, index) => this.textures.set(name, pictures[Math.min(index, 1)]));
            for (const input of this.inputs)
                if (input.TYPE === 'audio' || input.TYPE === 'audioFFT')
                    this.textures.set(input.NAME, sound(input.TYPE === 'audioFFT'));
            this.buffers = new Map();
        }

        location(name) {
            if (!(name in this.locations))
                this.locations[name] = gl.getUniformLocation(this.program, name);
            return this.locations[name];
        }

        sizeOf(pass) {
            const names = {WIDTH: width, HEIGHT: height, ...this.values};
            return [evaluate(pass.WIDTH ?? '$WIDTH', names) ?? width, evaluate(pass.HEIGHT ?? '$HEIGHT', names) ?? height];
        }

        bufferOf(pass) {
            const [bufferWidth, bufferHeight] = this.sizeOf(pass);
            const present = this.buffers.get(pass.TARGET);
            if (present && present.width === bufferWidth && present.height === bufferHeight)
                return present;
            for (const {image, frame} of present ? [present.read, present.write] : []) {
                gl.deleteTexture(image);
                gl.deleteFramebuffer(frame);
            }
            const made = buffer(bufferWidth, bufferHeight, Boolean(pass.FLOAT));
            this.buffers.set(pass.TARGET, made);
            return made;
        }

        // Draws the frame at a time in seconds into a canvas.
        draw(canvas, time) {
            gl.useProgram(this.program);
            gl.bindBuffer(gl.ARRAY_BUFFER, quad);
            gl.enableVertexAttribArray(0);
            gl.vertexAttribPointer(0, 2, gl.FLOAT, false, 0, 0);
            gl.disable(gl.BLEND);
            for (const pass of this.passes)
                if (pass.TARGET)
                    this.bufferOf(pass);
            this.setInputs(time);
            this.passes.forEach((pass, index) => this.runPass(pass, index));
            const lastTarget = this.passes[this.passes.length - 1].TARGET;
            if (lastTarget) {
                const shown = this.buffers.get(lastTarget);
                gl.bindFramebuffer(gl.READ_FRAMEBUFFER, shown.read.frame);
                gl.bindFramebuffer(gl.DRAW_FRAMEBUFFER, null);
                gl.blitFramebuffer(0, 0, shown.width, shown.height, 0, 0, width, height, gl.COLOR_BUFFER_BIT, gl.LINEAR);
            }
            gl.bindFramebuffer(gl.FRAMEBUFFER, null);
            const context = canvas.getContext('2d');
            context.clearRect(0, 0, canvas.width, canvas.height);
            context.drawImage(gl.canvas, 0, 0, canvas.width, canvas.height);
            // An event lasts one frame.
            for (const input of this.inputs)
                if (input.TYPE === 'event')
                    this.values[input.NAME] = false;
            ++this.frames;
            this.last = time;
        }

        setInputs(time) {
            const now = new Date();
            gl.uniform1f(this.location('TIME'), time);
            gl.uniform1f(this.location('TIMEDELTA'), Math.max(time - this.last, 0));
            gl.uniform1i(this.location('FRAMEINDEX'), this.frames);
            gl.uniform4f(this.location('DATE'), now.getFullYear(), now.getMonth() + 1, now.getDate(),
                now.getHours() * 3600 + now.getMinutes() * 60 + now.getSeconds());
            for (const input of this.inputs) {
                const value = this.values[input.NAME], place = this.location(input.NAME);
                if (isPicture(input) || place === null)
                    continue;
                if (types[input.TYPE] === 'vec2')
                    gl.uniform2f(place, value[0], value[1]);
                else if (types[input.TYPE] === 'vec4')
                    gl.uniform4f(place, value[0], value[1], value[2], value[3] ?? 1);
                else if (types[input.TYPE] === 'int' || types[input.TYPE] === 'bool')
                    gl.uniform1i(place, Number(value));
                else
                    gl.uniform1f(place, Number(value));
            }
        }

        runPass(pass, index) {
            const target = pass.TARGET ? this.buffers.get(pass.TARGET) : null;
            const [passWidth, passHeight] = target ? [target.width, target.height] : [width, height];
            let unit = 0;
            const bind = (name, image) => {
                gl.activeTexture(gl.TEXTURE0 + unit);
                gl.bindTexture(gl.TEXTURE_2D, image);
                gl.uniform1i(this.location(name), unit++);
            };
            this.textures.forEach((image, name) => bind(name, image));
            this.buffers.forEach((one, name) => bind(name, one.read.image));
            gl.bindFramebuffer(gl.FRAMEBUFFER, target ? target.write.frame : null);
            gl.viewport(0, 0, passWidth, passHeight);
            gl.uniform2f(this.location('RENDERSIZE'), passWidth, passHeight);
            gl.uniform1i(this.location('PASSINDEX'), index);
            gl.drawArrays(gl.TRIANGLE_STRIP, 0, 4);
            if (target)
                [target.read, target.write] = [target.write, target.read];
        }
    }

    return {Shader, evaluate, width, height};
})();
