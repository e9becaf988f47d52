// SPDX-License-Identifier: MIT
/** The tools of a board: a curtain, a spotlight, instruments to measure with, and pieces to move. */
const Tools = (() => {
  const clamp = (value, least, most) => Math.min(Math.max(value, least), most);

  /** Has arrow keys and others do something with an element: actions by the name of the key. */
  function onKeys(element, actions) {
    element.addEventListener('keydown', (event) => {
      const action = actions[event.key];
      if (action && !event.ctrlKey && !event.altKey && !event.metaKey) {
        event.preventDefault();
        event.stopPropagation();
        action(event.shiftKey);
      }
    });
  }

  /** Each edge of a curtain can be drawn to the opposite one; Enter opens and closes it. */
  function curtain(slide, element, item) {
    const open = { top: 0, right: 0, bottom: 0, left: 0 }; // parts of its size
    const box = () => element.getBBox();
    const show = () => {
      const sides = ['top', 'right', 'bottom', 'left'].map((side) => `${open[side] * 100}%`);
      element.style.clipPath = `inset(${sides.join(' ')})`;
      const width = 1 - open.left - open.right;
      const height = 1 - open.top - open.bottom;
      const part = Math.round((1 - Math.max(width, 0) * Math.max(height, 0)) * 100);
      element.setAttribute('aria-valuenow', part);
      element.setAttribute('aria-valuetext', `${part} % open`);
    };
    const pull = (side, part) => {
      const opposite = { top: 'bottom', bottom: 'top', left: 'right', right: 'left' }[side];
      open[side] = clamp(part, 0, 1 - open[opposite]);
      show();
    };
    const openOrClose = () => {
      const isOpen = open.bottom + open.top >= 1 || open.left + open.right >= 1;
      Object.assign(open, { top: 0, right: 0, bottom: isOpen ? 0 : 1, left: 0 });
      show();
    };
    Stage.enliven(element, 'slider', item.label);
    element.setAttribute('aria-valuemin', '0');
    element.setAttribute('aria-valuemax', '100');
    const step = 0.1;
    onKeys(element, {
      ArrowUp: () => pull('bottom', open.bottom + step),
      ArrowDown: () => pull('bottom', open.bottom - step),
      ArrowLeft: () => pull('right', open.right + step),
      ArrowRight: () => pull('right', open.right - step),
      Enter: openOrClose,
      ' ': openOrClose,
    });
    let side = null;
    let before = 0;
    Stage.drag(element, slide, {
      begin: (point) => {
        const { x, y, width, height } = box();
        const far = {
          top: (point.y - y) / height - open.top, bottom: (y + height - point.y) / height - open.bottom,
          left: (point.x - x) / width - open.left, right: (x + width - point.x) / width - open.right,
        };
        side = Object.keys(far).reduce((best, one) => (far[one] < far[best] ? one : best));
        before = open[side];
        return true;
      },
      move: (point, by) => {
        const { width, height } = box();
        const parts = { top: by.y / height, bottom: -by.y / height, left: by.x / width, right: -by.x / width };
        pull(side, before + parts[side]);
      },
      end: () => {},
    });
    element.addEventListener('click', (event) => event.stopPropagation());
    show();
    return () => { Object.assign(open, { top: 0, right: 0, bottom: 0, left: 0 }); show(); };
  }

  /** The light goes with the pointer; arrows move it, plus and minus make it larger and smaller. */
  function spotlight(slide, element, item) {
    const dark = element.querySelector('path');
    const area = element.getBBox();
    const spot = { x: item.tool.center[0], y: item.tool.center[1], radius: item.tool.radius };
    const first = { ...spot };
    const show = () => {
      const { x, y, radius: r } = spot;
      const around = `M${area.x} ${area.y}h${area.width}v${area.height}h${-area.width}z`;
      dark.setAttribute('d', `${around}M${x - r} ${y}a${r} ${r} 0 1 0 ${2 * r} 0a${r} ${r} 0 1 0 ${-2 * r} 0z`);
      dark.setAttribute('fill-rule', 'evenodd');
    };
    const moveTo = (x, y) => {
      spot.x = clamp(x, area.x + spot.radius, Math.max(area.x + area.width - spot.radius, area.x + spot.radius));
      spot.y = clamp(y, area.y + spot.radius, Math.max(area.y + area.height - spot.radius, area.y + spot.radius));
      show();
    };
    const grow = (factor) => {
      spot.radius = clamp(spot.radius * factor, 10, Math.min(area.width, area.height) / 2);
      moveTo(spot.x, spot.y);
    };
    const step = 20;
    Stage.enliven(element, 'group', Words.text('%1. Arrows move it, plus and minus change its size.', item.label));
    onKeys(element, {
      ArrowUp: () => moveTo(spot.x, spot.y - step),
      ArrowDown: () => moveTo(spot.x, spot.y + step),
      ArrowLeft: () => moveTo(spot.x - step, spot.y),
      ArrowRight: () => moveTo(spot.x + step, spot.y),
      '+': () => grow(1.1),
      '-': () => grow(1 / 1.1),
    });
    element.addEventListener('wheel', (event) => {
      event.preventDefault();
      grow(event.deltaY < 0 ? 1.1 : 1 / 1.1);
    });
    Stage.drag(element, slide, {
      begin: (point) => { moveTo(point.x, point.y); return true; },
      move: (point) => moveTo(point.x, point.y),
    });
    element.addEventListener('click', (event) => event.stopPropagation());
    show();
    return () => { Object.assign(spot, first); show(); };
  }

  /**
   * An item that is moved, and turned about its middle. Returns its place, and what takes it back. onTurn is called
   * with the angle after each turn by its handle.
   */
  function movable(slide, element, item, { canTurn, onTurn, onDrop }) {
    const place = { x: 0, y: 0, angle: 0 };
    const [x0, y0] = item.tool.middle || [0, 0];
    const original = { x: x0, y: y0 };
    const show = () => {
      element.setAttribute('transform',
        `translate(${place.x} ${place.y}) rotate(${place.angle} ${original.x} ${original.y})`);
    };
    const move = (x, y) => { Object.assign(place, { x, y }); show(); };
    const turn = (angle) => { place.angle = angle; show(); if (onTurn) { onTurn(angle); } };
    Stage.enliven(element, 'group', canTurn
      ? Words.text('%1. Arrows move it, square brackets turn it.', item.label)
      : Words.text('%1. Arrows move it.', item.label));
    const far = (isFar) => (isFar ? 1 : 10);
    const actions = {
      ArrowUp: (isFar) => move(place.x, place.y - far(isFar)),
      ArrowDown: (isFar) => move(place.x, place.y + far(isFar)),
      ArrowLeft: (isFar) => move(place.x - far(isFar), place.y),
      ArrowRight: (isFar) => move(place.x + far(isFar), place.y),
    };
    if (canTurn) {
      actions['['] = () => turn(place.angle - 5);
      actions[']'] = () => turn(place.angle + 5);
    }
    onKeys(element, actions);
    let before = null;
    Stage.drag(element, slide, {
      begin: () => { before = { ...place }; return true; },
      move: (point, by) => move(before.x + by.x, before.y + by.y),
      end: (moved, point) => moved && onDrop && onDrop(place, point),
    });
    element.addEventListener('click', (event) => event.stopPropagation());
    if (canTurn) {
      addHandle(slide, element, item, place, original, turn);
    }
    return { place, original, show, reset: () => { Object.assign(place, { x: 0, y: 0, angle: 0 }); show(); } };
  }

  /** A knob on an instrument, to turn it by. */
  function addHandle(slide, element, item, place, middle, turn) {
    const size = Math.max(slide.height * 0.016, 8);
    const knob = Stage.makeSvg('circle', {
      cx: item.tool.handle[0], cy: item.tool.handle[1], r: size, class: 'knob', role: 'button', tabindex: '-1',
      'aria-label': Words.text('Turn %1', item.label),
    });
    element.append(knob);
    let offset = 0;
    const angleTo = (point) => {
      const x = point.x - middle.x - place.x;
      const y = point.y - middle.y - place.y;
      return (Math.atan2(y, x) * 180) / Math.PI;
    };
    Stage.drag(knob, slide, {
      begin: (point) => { offset = place.angle - angleTo(point); return true; },
      move: (point) => turn(angleTo(point) + offset),
    });
  }

  function instrument(slide, element, item) {
    return movable(slide, element, item, { canTurn: true }).reset;
  }

  /** Compasses draw with their lead when they are turned about the needle. */
  function compasses(slide, element, item) {
    let points = [];
    let arc = null;
    const arcs = [];
    const onTurn = () => {
      const tip = new DOMPoint(...item.tool.handle).matrixTransform(element.transform.baseVal.consolidate().matrix);
      if (!arc) {
        arc = Stage.makeSvg('polyline', { class: 'arc' });
        arcs.push(arc);
        slide.svg.append(arc);
      }
      points.push(`${tip.x.toFixed(1)},${tip.y.toFixed(1)}`);
      arc.setAttribute('points', points.join(' '));
    };
    const moved = movable(slide, element, item, {
      canTurn: true, onTurn, onDrop: () => { arc = null; points = []; },
    });
    return () => { arcs.splice(0).forEach((one) => one.remove()); arc = null; points = []; moved.reset(); };
  }

  /** A piece of a game: in a basket it is judged, and goes back where it is wrong. Enter lets it go where it is. */
  function piece(slide, element, item) {
    let moved = null;
    const drop = () => {
      slide.svg.append(element);
      element.focus({ preventScroll: true });
      const box = element.getBBox();
      const x = box.x + box.width / 2 + moved.place.x;
      const y = box.y + box.height / 2 + moved.place.y;
      const holds = (one) => x > one.x && y > one.y && x < one.x + one.width && y < one.y + one.height;
      const basket = slide.items.filter((one) => one.tool && one.tool.kind === 'basket')
        .find((one) => slide.elements(one.id).some((drawn) => holds(drawn.getBBox())));
      const isRight = basket ? Games.judge(slide, item.tool.text, basket.tool.text) : null;
      element.classList.toggle('fits', isRight === true);
      if (isRight === false) {
        moved.reset();
      }
    };
    moved = movable(slide, element, item, { canTurn: false, onDrop: drop });
    onKeys(element, { Enter: drop });
    return () => { element.classList.remove('fits'); moved.reset(); Games.resetScore(slide); };
  }

  /** A click takes the cover off what is under it. Keys lay it back, and so does the slide's beginning. */
  function cover(element) {
    const lift = (isOff) => {
      element.classList.toggle('lifted', isOff);
      element.setAttribute('aria-pressed', isOff);
    };
    Stage.enliven(element, 'button');
    Stage.onActivate(element, () => lift(!element.classList.contains('lifted')));
    lift(false);
    return () => lift(false);
  }

  const kinds = { curtain, spotlight, instrument, compasses, piece };

  /** Called when a slide is there for the first time. Returns what takes all of its tools back. */
  function prepare(slide) {
    const resets = slide.covers.map(cover);
    slide.items.filter((item) => item.tool && kinds[item.tool.kind]).forEach((item) => {
      slide.elements(item.id).forEach((element) => resets.push(kinds[item.tool.kind](slide, element, item)));
    });
    return resets;
  }

  return { prepare, onKeys };
})();
