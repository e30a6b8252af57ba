#!/usr/bin/env python3
"""Independent evaluation of the thermal calculations, written from the formulas alone.

Run once to produce the expected numbers of calculostest.cpp; it is not part of the build.
Plain double arithmetic, Python's ** for powers, float32 rounding through struct.
"""
import math
import struct

ABS = 459.6


def f32(x):
    return struct.unpack('f', struct.pack('f', x))[0]


def viento(V):
    return ((88 * V + 68.9) / 68.9) ** (1 / 2)


def qrad(T, e, TA, frio=False):
    a = ((T + ABS) / 100) ** 4
    b = ((TA + ABS) / 100) ** 4
    return (0.174 * e) * ((b - a) if frio else (a - b))


def qconv0(T, C, TA, frio=False):
    salto = (TA - T) if frio else (T - TA)
    return C * (1 / (((TA + ABS) + (T + ABS)) / 2)) ** 0.181 * salto ** 1.266


def cond(codigo, Tm):
    ab = {1: (0.217, 0.0019), 5: (0.234, 0.0022), 9: (0.21, 0.0022), 12: (0.2219, 0.0018)}
    a, b = ab[codigo]
    return a * math.exp(b * Tm)


def bis_sup(obj, C, Es, TS, TA, fv, bomba):
    lo, hi = TA, TS + TS
    while True:
        T = (hi - lo) / 2 + lo
        Q = qrad(T, Es, TA) + qconv0(T, C, TA) * fv
        if abs(obj - Q) < 0.01:
            return True, T
        if Q < obj:
            lo = T
        else:
            hi = T
        if f32(abs(lo - T)) < f32(1e-10) and f32(abs(hi - T)) < f32(1e-10):
            return False, T
        bomba[0] += 1


def bis_frio(obj, C, Es, TI, TA, fv, bomba):
    lo, hi = TI, TA
    while True:
        T = (hi - lo) / 2 + lo
        Q = qrad(T, Es, TA, True) + qconv0(T, C, TA, True) * fv
        if abs(obj - Q) < 0.01:
            return T
        if Q > obj:
            lo = T
        else:
            hi = T
        bomba[0] += 1


def bis_radio(Eq, r1, bomba, con_rendirse=True):
    lo, hi = r1, r1 + Eq
    while True:
        r = (hi - lo) / 2 + lo
        e = math.log(r / r1) * r
        if abs(e - Eq) < 0.001:
            return r
        if e > Eq:
            hi = r
        else:
            lo = r
        if con_rendirse:
            if f32(abs(lo - r)) < f32(1e-10) and f32(abs(hi - r)) < f32(1e-10):
                return r
            bomba[0] += 1


def redondeo(E):
    n = math.floor(E)
    fr = E - n
    return n if fr < 0.25 else (n + 0.5 if fr < 0.75 else n + 1)


def redondeo_frio(E):
    n = math.floor(E)
    return n + 0.5 if E - n < 0.5 else n + 1


def sp(tipo, TI, TS, TA, V, Es, Ed, codigo):
    bomba = [1]
    fv = viento(V)
    FR = qrad(TS, Es, TA) + qconv0(TS, 0.941, TA)
    Cs = [0.941, 0.7383, 0.4714]
    ideal = []
    for C in Cs:
        b = dict(TS=0, TM=0, k=0, f=0, E=0, Qr=0, Qc=0, Qt=0, Qdt=0, Ef=0, Qdc=0)
        ok, T = bis_sup(FR, C, Es, TS, TA, fv, bomba)
        if ok:
            b['Qdc'] = qconv0(TI, C, TA) * fv
            b['TS'] = T
            b['TM'] = (T + TI) / 2
            b['k'] = cond(tipo, b['TM'])
            b['Qr'] = qrad(T, Es, TA)
            b['Qc'] = qconv0(T, C, TA) * fv
            b['Qt'] = b['Qr'] + b['Qc']
            b['E'] = (TI - T) * b['k'] / b['Qt']
            b['f'] = ((TI - T) * b['k']) / ((T - TA) * b['E'])
        ideal.append(b)
    Qrd = qrad(TI, Ed, TA)
    for b in ideal:
        b['Qdt'] = Qrd + b['Qdc']
        b['Ef'] = (b['Qdt'] - FR) / b['Qdt'] * 100
    E0 = ideal[0]['E'] if ideal[0]['E'] < ideal[1]['E'] else ideal[1]['E']
    if ideal[2]['E'] < E0:
        E0 = ideal[2]['E']
    Ep = redondeo(E0)
    prac = []
    for C, bi in zip(Cs, ideal):
        b = dict(TS=0, TM=0, k=0, f=0, E=Ep, Qr=0, Qc=0, Qt=0, Qdt=0, Ef=0, Qdc=0)
        q = (TI - bi['TS']) / (Ep / bi['k'])
        ok, T = bis_sup(q, C, Es, TS, TA, fv, bomba)
        if ok:
            b['TS'] = T
            b['Qdc'] = qconv0(TI, C, TA) * fv
            b['TM'] = (T + TI) / 2
            b['k'] = cond(tipo, b['TM'])
            b['Qr'] = qrad(T, Es, TA)
            b['Qc'] = qconv0(T, C, TA) * fv
            b['Qt'] = b['Qr'] + b['Qc']
            b['f'] = ((TI - T) * b['k']) / ((T - TA) * Ep)
        b['q'] = q
        prac.append(b)
    Qrd = qrad(TI, Ed, TA)
    for b in prac:
        b['Qdt'] = Qrd + b['Qdc']
        b['Ef'] = (b['Qdt'] - b['q']) / b['Qdt'] * 100
    res = []
    for bi, bp in zip(ideal, prac):
        for b in (bi, bp):
            res.append([TI, b['TS'], TA, V, codigo, Es, Ed, b['TM'], b['k'], b['f'], b['E'],
                        b['Qr'], b['Qc'], b['Qt'], b['Qdt'], b['Ef']])
    return res, bomba[0], Ep


TUBOS = {
    2: (2.375, 2.067, [4.500, 5.563, 6.625, 7.625, 8.625, 9.625, 10.750]),
    3: (3.500, 3.068, [5.563, 6.625, 7.625, 8.625, 9.625, 10.750, 11.750]),
    4: (4.500, 4.026, [6.625, 7.625, 8.625, 9.625, 10.750, 11.750, 12.750]),
}
ESPESORES = [1, 1.5, 2, 2.5, 3, 3.5, 4]


def seccion_cercana(secs, Dreq):
    if secs[0] > Dreq:
        return 0
    for i in range(1, 7):
        if secs[i] > Dreq:
            return i if secs[i] - Dreq < Dreq - secs[i - 1] else i - 1
    return 6


def sc(tipo, TI, TS, TA, V, nominal, codigo, Es):
    bomba = [1]
    if tipo == 12 or nominal < 14:
        D, Dint, secs = TUBOS[nominal]
        De = D + 3
    else:
        nominal = math.floor(nominal)
        D = Dint = nominal
        De = nominal + 3
    fv = viento(V)
    r1 = D / 2
    pi = 4 * math.atan(1)
    FR = qrad(TS, Es, TA) + qconv0(TS, 1.235 * (1 / De) ** 0.2, TA)
    tramos = []
    state = {'De': De}

    def ideal(C0):
        t = dict(TS=0, TM=0, k=0, f=0, E=0, Qr=0, Qc=0, Qt=0, Qdt=0, Ef=0, Qrd=0, Qdc=0, ok=False)
        C = C0 * (1 / state['De']) ** 0.2
        ok, T = bis_sup(FR, C, Es, TS, TA, fv, bomba)
        if not ok:
            # The bare pipe needs no surface temperature: it stands when the bisection gives up.
            t['Qrd'] = 0.174 * (((TI + ABS) / 100) ** 4 - ((TA + ABS) / 100) ** 4)
            t['Qdc'] = qconv0(TI, C0 * (1 / D) ** 0.2, TA) * fv
            t['Qdt'] = t['Qrd'] + t['Qdc']
            return t
        t['ok'] = True
        t['TS'] = T
        t['Qr'] = qrad(T, Es, TA)
        t['Qc'] = qconv0(T, C, TA) * fv
        t['Qt'] = t['Qr'] + t['Qc']
        t['TM'] = (T + TI) / 2
        t['k'] = cond(tipo, t['TM'])
        t['Eq'] = ((TI - T) * t['k']) / t['Qt']
        t['f'] = ((TI - T) * t['k']) / ((T - TA) * t['Eq'])
        t['Qrd'] = 0.174 * (((TI + ABS) / 100) ** 4 - ((TA + ABS) / 100) ** 4)
        t['Qdc'] = qconv0(TI, C0 * (1 / D) ** 0.2, TA) * fv
        t['Qdt'] = t['Qrd'] + t['Qdc']
        t['Ef'] = (t['Qdt'] - t['Qt']) / t['Qdt'] * 100
        r2 = bis_radio(t['Eq'], r1, bomba)
        t['E'] = r2 - r1
        return t

    def practico(C0, ti):
        p = dict(TS=0, TM=0, k=0, f=0, E=0, Qr=0, Qc=0, Qt=0, Qdt=0, Ef=0, Qrd=0, Qdc=0)
        if not ti['ok']:
            return p
        if tipo == 12:
            Dreq = 2 * ti['E'] + D
            i = seccion_cercana(secs, Dreq)
            p['E'] = ESPESORES[i]
            r2p = (secs[i] - Dint) / 2 + r1
        else:
            Ep = redondeo(ti['E'])
            if Ep < 1:
                Ep = 1
            p['E'] = Ep
            Dop = 2 * Ep + D
            r2p = Dop / 2
            state['De'] = Dop
        Eqp = math.log(r2p / r1) * r2p
        q = (TI - TA) / (Eqp / ti['k'] + 1 / ti['f'])
        C = C0 * (1 / state['De']) ** 0.2
        ok, T = bis_sup(q, C, Es, TS, TA, fv, bomba)
        if ok:
            p['TS'] = T
            p['Qr'] = qrad(T, Es, TA)
            p['Qc'] = qconv0(T, C, TA) * fv
            p['Qt'] = p['Qr'] + p['Qc']
            p['TM'] = (T + TI) / 2
            p['k'] = cond(tipo, p['TM'])
            Eq = ((TI - T) * p['k']) / p['Qt']
            p['f'] = ((TI - T) * p['k']) / ((T - TA) * Eq)
            p['Qrd'] = 0.174 * (((TI + ABS) / 100) ** 4 - ((TA + ABS) / 100) ** 4)
            p['Qdc'] = qconv0(TI, C0 * (1 / D) ** 0.2, TA) * fv
            p['Qdt'] = p['Qrd'] + p['Qdc']
            p['Ef'] = (p['Qdt'] - p['Qt']) / p['Qdt'] * 100
        return p

    def pie_ins(b):
        for n in ('Qr', 'Qc', 'Qt'):
            b[n] = b[n] * pi * state['De'] / 12
        b['Qdt'] = b['Qdt'] * pi * D / 12

    vi = ideal(1.235)
    vp = practico(1.235, vi)
    pie_ins(vp)
    vp['QDR'] = vp['Qrd'] * pi * D / 12
    vp['QDC'] = vp['Qdc'] * pi * D / 12
    hi = ideal(1.016)
    qrd_v = vi['Qrd']
    for b in (vi, hi):
        pie_ins(b)
        b['QDR'] = qrd_v * pi * D / 12
        b['QDC'] = b['Qdc'] * pi * D / 12
    hp = practico(1.016, hi)
    pie_ins(hp)
    hp['QDR'] = hp['Qrd'] * pi * D / 12
    hp['QDC'] = hp['Qdc'] * pi * D / 12
    res = []
    for b in (vi, vp, hi, hp):
        res.append([TI, b['TS'], TA, V, nominal, codigo, Es, b['TM'], b['k'], b['f'], b['E'],
                    b['Qr'], b['Qc'], b['Qt'], b['Qdt'], b['Ef']])
    publicos = dict(DM=D, QDRL1=vi['QDR'], QDRL2=hi['QDR'], QDRDL1=vp['QDR'], QDRDL2=hp['QDR'],
                    QDCL1=vi['QDC'], QDCL2=hi['QDC'], QDCDL1=vp['QDC'], QDCDL2=hp['QDC'])
    return res, bomba[0], publicos


def spfrio(TI, TS, TA, V, k, codigo, Es, Ed):
    bomba = [0]
    fv = viento(V)
    FR = qconv0(TS, 0.941, TA, True) + qrad(TS, Es, TA, True)
    Cs = [0.941, 0.7383, 0.4714]
    ideal = []
    for C in Cs:
        b = {}
        b['Qdc'] = qconv0(TI, C, TA, True) * fv
        T = TS
        b['TS'] = T
        b['TM'] = (T + TI) / 2
        b['Qr'] = qrad(T, Es, TA, True)
        b['Qc'] = qconv0(T, C, TA, True) * fv
        b['Qt'] = b['Qr'] + b['Qc']
        b['E'] = ((T - TI) * k) / b['Qt']
        b['f'] = ((T - TI) * k) / ((TA - T) * b['E'])
        ideal.append(b)
    Qrd = qrad(TI, Ed, TA, True)
    for b in ideal:
        b['Qdt'] = b['Qdc'] + Qrd
        b['Ef'] = (b['Qdt'] - FR) / b['Qdt'] * 100
    prac = []
    for C, bi in zip(Cs, ideal):
        b = {}
        Ep = redondeo_frio(bi['E'])
        b['E'] = Ep
        q = (TS - TI) / (Ep / k)
        T = bis_frio(q, C, Es, TI, TA, fv, bomba)
        b['TS'] = T
        b['Qdc'] = qconv0(TI, C, TA, True) * fv
        b['TM'] = (T + TI) / 2
        b['Qr'] = qrad(T, Es, TA, True)
        b['Qc'] = qconv0(T, C, TA, True) * fv
        b['Qt'] = b['Qr'] + b['Qc']
        if C == 0.7383:
            b['f'] = ((TI - T) * k) / ((T - TA) * Ep)
        else:
            b['f'] = ((T - TI) * k) / ((TA - T) * Ep)
        b['q'] = q
        prac.append(b)
    Qrd = qrad(TI, Ed, TA, True)
    for b in prac:
        b['Qdt'] = b['Qdc'] + Qrd
        b['Ef'] = (b['Qdt'] - b['q']) / b['Qdt'] * 100
    res = []
    for bi, bp in zip(ideal, prac):
        for b in (bi, bp):
            res.append([TI, b['TS'], TA, V, codigo, Es, Ed, b['TM'], k, b['f'], b['E'],
                        b['Qr'], b['Qc'], b['Qt'], b['Qdt'], b['Ef']])
    return res, bomba[0]


def scfrio(TI, TS, TA, V, k, codigo, Es, nominal):
    bomba = [0]
    D, Dint, secs = TUBOS[nominal]
    De = D + 3
    r1 = D / 2
    fv = viento(V)
    pi = 3.1416
    salida = []
    publicos = {}
    T = TS
    for C0, n in ((1.235, 1), (1.016, 2)):
        C = C0 * (1 / De) ** 0.2
        bloques = []
        for fase in range(2):
            b = {}
            b['TS'] = T
            b['Qr'] = qrad(T, Es, TA, True)
            b['Qc'] = qconv0(T, C, TA, True) * fv
            b['Qt'] = b['Qr'] + b['Qc']
            b['TM'] = (T + TI) / 2
            Eq = ((T - TI) * k) / b['Qt']
            b['f'] = ((T - TI) * k) / ((TA - T) * Eq)
            b['Qrd'] = 0.174 * (((TA + ABS) / 100) ** 4 - ((TI + ABS) / 100) ** 4)
            b['Qdc'] = qconv0(TI, C0 * (1 / D) ** 0.2, TA, True) * fv
            b['Qdt'] = b['Qrd'] + b['Qdc']
            b['Ef'] = (b['Qdt'] - b['Qt']) / b['Qdt'] * 100
            bloques.append(b)
            if fase == 0:
                r2 = bis_radio(Eq, r1, bomba, con_rendirse=False)
                b['E'] = r2 - r1
                Dreq = 2 * b['E'] + D
                elegido = None
                for i in range(5):
                    if secs[i] > Dreq:
                        elegido = i
                        break
                if elegido is None:
                    return None, bomba[0], None
                r2p = (secs[elegido] - Dint) / 2 + r1
                Eqp = math.log(r2p / r1) * r2p
                q = (TA - TI) / (Eqp / k + 1 / b['f'])
                T = bis_frio(q, C, Es, TI, TA, fv, bomba)
            else:
                b['E'] = ESPESORES[elegido]
        for b in bloques:
            for nq in ('Qr', 'Qc', 'Qt'):
                b[nq] = b[nq] * pi * De / 12
            b['Qdt'] = b['Qdt'] * pi * D / 12
            salida.append([TI, b['TS'], TA, V, nominal, codigo, Es, b['TM'], k, b['f'], b['E'],
                           b['Qr'], b['Qc'], b['Qt'], b['Qdt'], b['Ef']])
        publicos['QDRL%d' % n] = bloques[0]['Qrd'] * pi * D / 12
        publicos['QDRDL%d' % n] = bloques[1]['Qrd'] * pi * D / 12
        publicos['QDCL%d' % n] = bloques[0]['Qdc'] * pi * D / 12
        publicos['QDCDL%d' % n] = bloques[1]['Qdc'] * pi * D / 12
    return salida, bomba[0], publicos


def imprimir(nombre, res, extra):
    print('//', nombre, extra)
    for b, fila in enumerate(res):
        print('    {%d, {%s}},' % (b, ', '.join('%.17g' % x for x in fila)))


def sp_grafica_sin_espesor(tipo, TI, TS, TA, Es):
    """Chart mode of a case whose least ideal thickness rounds to 0: the target flux of every
    practical step fails and stays 0, and f' fails for E = 0."""
    bomba = [0]
    ok, T = bis_sup(0, 0.7383, Es, TS, TA, 1.0, bomba)
    return ok, T, qrad(T, Es, TA) + qconv0(T, 0.7383, TA)


def extra():
    try:
        sp(1, 150, 148, 80, 0, 0.9, 0.9, 7)
    except ZeroDivisionError as error:
        print('// SP 150 148 80 V0:', error)
    print('// chart vertical Qt', sp_grafica_sin_espesor(1, 150, 148, 80, 0.9))
    r, n, p = sc(9, 300, 10, -100, 0, 3, 2, 0.05)
    imprimir('SC 9 300 10 -100 V0 Es0.05 nominal 3', r, (n, p))
    r, n, p = scfrio(-20, 56, 95, 2, 8, 6, 0.9, 3)
    print('// SCFrio k8: no section up to Tres', r is None)


if __name__ == '__main__':
    print('qrad(400,0.9,TA=80)', repr(qrad(400, 0.9, 80)))
    print('qconv0(400,0.941,80)', repr(qconv0(400, 0.941, 80)))
    print('qconv(400,0.7383,80,V=5)', repr(qconv0(400, 0.7383, 80) * viento(5)))
    print('viento(5)', repr(viento(5)))
    print('qrad frio(40,0.9,TA=90)', repr(qrad(40, 0.9, 90, True)))
    print('qconv0 frio(40,0.4714,90)', repr(qconv0(40, 0.4714, 90, True)))
    print('coef tubo 1.235 D=5.375', repr(1.235 * (1 / 5.375) ** 0.2))
    print('cond 12 100', repr(cond(12, 100)))
    r, n, ep = sp(1, 600, 140, 80, 0, 0.9, 0.8, 7)
    imprimir('SP 1 600 140 80 V0', r, (n, ep))
    r, n, ep = sp(5, 500, 120, 70, 8, 0.3, 0.85, 3)
    imprimir('SP 5 500 120 70 V8', r, (n, ep))
    r, n, p = sc(9, 450, 130, 75, 3, 3, 2, 0.85)
    imprimir('SC 9 450 130 75 V3 nominal 3', r, (n, p))
    r, n, p = sc(12, 600, 140, 80, 0, 4, 5, 0.9)
    imprimir('SC 12 600 140 80 V0 nominal 4', r, (n, p))
    r, n, p = sc(9, 400, 120, 70, 2, 14.7, 4, 0.9)
    imprimir('SC 9 400 120 70 V2 nominal 14.7', r, (n, p))
    r, n = spfrio(0, 51, 90, 4, 0.15, 6, 0.9, 0.3)
    imprimir('SPFrio 0 51 90 V4 k0.15', r, n)
    r, n, p = scfrio(-20, 56, 95, 2, 0.16, 6, 0.9, 3)
    imprimir('SCFrio -20 56 95 V2 k0.16 nominal 3', r, (n, p))
    extra()
